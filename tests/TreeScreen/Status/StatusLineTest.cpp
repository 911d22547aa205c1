// SPDX-License-Identifier: MIT
#include "TreeScreen/Status/StatusLine.h"

#include <QAccessible>
#include <QImage>

#include <gtest/gtest.h>

#include <memory>

namespace tessera {
namespace {

class StatusLineTest : public testing::Test {
protected:
    StatusLineTest()
    {
        line.resize(600, line.sizeHint().height());
        line.setStatus({name, {QStringLiteral("1.2 GB"), QStringLiteral("34.0% of usr")}});
    }

    int widthOf(const QString& text) const { return line.fontMetrics().horizontalAdvance(text); }

    bool fits() const
    {
        const StatusLine::Parts parts = line.shownParts();
        return widthOf(parts.name) + widthOf(parts.figures) <= line.width();
    }

    QImage picture()
    {
        QImage image(line.size(), QImage::Format_RGB32);
        image.fill(line.palette().color(QPalette::Window));
        line.render(&image);
        return image;
    }

    /// Whether anything is written in that column.
    static bool hasInk(const QImage& image, int from, int to)
    {
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixel(x, y) != image.pixel(image.width() / 2, 0)) {
                    return true;
                }
            }
        }
        return false;
    }

    const QString name = QStringLiteral("share");
    StatusLine line;
};

TEST_F(StatusLineTest, SaysTheNameAndTheFiguresBehindIt)
{
    EXPECT_EQ(line.shownParts().name, name);
    EXPECT_EQ(line.shownParts().figures, QStringLiteral("  ·  1.2 GB  ·  34.0% of usr"));
}

TEST_F(StatusLineTest, ALongNameLosesItsMiddleAndTheFiguresNothing)
{
    line.setStatus({QStringLiteral("a%1z").arg(QString(300, u'm')), {QStringLiteral("1.2 GB")}});
    const StatusLine::Parts parts = line.shownParts();
    EXPECT_TRUE(parts.name.startsWith(QStringLiteral("am")));
    EXPECT_TRUE(parts.name.endsWith(QStringLiteral("mz")));
    EXPECT_TRUE(parts.name.contains(QChar(0x2026)));
    EXPECT_EQ(parts.figures, QStringLiteral("  ·  1.2 GB"));
    EXPECT_TRUE(fits());
}

TEST_F(StatusLineTest, LongFiguresLeaveAThirdToTheName)
{
    line.setStatus({QString(300, u'm'), {QStringLiteral("1.2 GB"), QString(300, u'w')}});
    const StatusLine::Parts parts = line.shownParts();
    EXPECT_NEAR(widthOf(parts.name), 200, widthOf(QStringLiteral("mm")));
    EXPECT_TRUE(parts.figures.startsWith(QStringLiteral("  ·  1.2 GB  ·  w")));
    EXPECT_TRUE(parts.figures.endsWith(QChar(0x2026)));
    EXPECT_TRUE(fits());
}

TEST_F(StatusLineTest, IsAsHighAsALineAndAsksForNoWidth)
{
    EXPECT_EQ(line.sizeHint(), QSize(0, line.fontMetrics().height()));
    line.setStatus({QString(300, u'm'), {}});
    EXPECT_EQ(line.minimumSizeHint().width(), 0);
}

TEST_F(StatusLineTest, GrowsWithTheLetters)
{
    const int before = line.sizeHint().height();
    QFont large = line.font();
    large.setPixelSize(40);
    line.setFont(large);
    EXPECT_GE(line.sizeHint().height(), 40);
    EXPECT_GT(line.sizeHint().height(), before);
    line.resize(600, line.sizeHint().height());
    EXPECT_TRUE(fits());
}

TEST_F(StatusLineTest, BeginsAtTheLeft)
{
    const QImage image = picture();
    EXPECT_TRUE(hasInk(image, 0, widthOf(name)));
    EXPECT_FALSE(hasInk(image, 500, 600));
}

TEST_F(StatusLineTest, BeginsAtTheRightWhereOneReadsFromThere)
{
    line.setLayoutDirection(Qt::RightToLeft);
    const QImage image = picture();
    EXPECT_TRUE(hasInk(image, 600 - widthOf(name), 600));
    EXPECT_FALSE(hasInk(image, 0, 100));
}

TEST_F(StatusLineTest, WritesWithTheColourOfItsWindowsTexts)
{
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, QColor(0xFF, 0xE0, 0xC0));
    line.setPalette(dark);
    line.setStatus({QString(3, QChar(0x2588)), {}});
    EXPECT_EQ(
        picture().pixel(widthOf(QString(QChar(0x2588))), line.height() / 2),
        qRgb(0xFF, 0xE0, 0xC0));
}

TEST_F(StatusLineTest, ScreenReadersFindAllOfItByItsNameAndAsItsValue)
{
    line.resize(50, line.height());
    const auto* const accessible = QAccessible::queryAccessibleInterface(&line);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::StaticText);
    const QString all = QStringLiteral("share, 1.2 GB, 34.0% of usr");
    EXPECT_EQ(accessible->text(QAccessible::Name), all);
    EXPECT_EQ(accessible->text(QAccessible::Value), all);
}

TEST_F(StatusLineTest, ANameThatLooksLikeMarkupIsWrittenAsItIs)
{
    line.setStatus({QStringLiteral("<b>a</b>&b"), {}});
    EXPECT_EQ(line.shownParts().name, QStringLiteral("<b>a</b>&b"));
    EXPECT_TRUE(hasInk(
        picture(),
        widthOf(QStringLiteral("<b>a</")),
        line.fontMetrics().horizontalAdvance(line.shownParts().name)));
}

} // namespace
} // namespace tessera
