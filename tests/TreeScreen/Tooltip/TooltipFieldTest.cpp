// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipField.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace tessera {

namespace {

constexpr int kWidth = 143;
constexpr int kRoomForFiveLines = 60;
constexpr int kTextPixels = 10;
constexpr int kPitch = 12;

class TooltipFieldTest : public testing::Test {
protected:
    TooltipFieldTest()
    {
        field.setTextPixels(kTextPixels);
        field.setWrapping(true);
        field.resize(kWidth, kRoomForFiveLines);
    }

    QString joinedLines() const
    {
        QString all;
        for (const QString& line : field.shownLines()) {
            all += line;
        }
        return all;
    }

    bool fits(const QString& line) const
    {
        return QFontMetricsF(field.font()).horizontalAdvance(line) <= kWidth;
    }

    TooltipField field;
};

} // namespace

TEST_F(TooltipFieldTest, AShortTextNeedsOneLine)
{
    field.setText(QStringLiteral("/home"));

    EXPECT_EQ(field.neededHeight(), kPitch);
}

TEST_F(TooltipFieldTest, NoTextNeedsNoHeight)
{
    EXPECT_EQ(field.neededHeight(), 0);
}

TEST_F(TooltipFieldTest, ATextWithoutSpacesIsWrappedInsideItsWords)
{
    field.setText(QString(40, QLatin1Char('W')));

    EXPECT_GT(field.neededHeight(), kPitch);
    EXPECT_EQ(joinedLines(), field.text());
    EXPECT_TRUE(std::ranges::all_of(
        field.shownLines(), [this](const QString& line) { return fits(line); }));
}

TEST_F(TooltipFieldTest, AReturnEndsALineAndOpensNoneAtTheEnd)
{
    field.setText(QStringLiteral("a\rb\rc\r"));

    EXPECT_EQ(field.neededHeight(), 3 * kPitch);
    EXPECT_EQ(joinedLines(), QStringLiteral("abc"));
}

TEST_F(TooltipFieldTest, AnEmptyNameStillTakesItsLine)
{
    field.setText(QStringLiteral("a\r\rc\r"));

    EXPECT_EQ(field.neededHeight(), 3 * kPitch);
}

TEST_F(TooltipFieldTest, ATextTooLongForTheFieldShowsItsBeginningAndItsEnd)
{
    field.setText(
        QStringLiteral("/begin") + QString(300, QLatin1Char('W')) + QStringLiteral("/end"));

    ASSERT_EQ(field.shownLines().size(), 5);
    EXPECT_TRUE(joinedLines().startsWith(QLatin1String("/begin")));
    EXPECT_TRUE(field.shownLines().back().startsWith(QChar(0x2026)));
    EXPECT_TRUE(field.shownLines().back().endsWith(QLatin1String("/end")));
    EXPECT_TRUE(fits(field.shownLines().back()));
    EXPECT_GT(field.neededHeight(), kRoomForFiveLines);
}

TEST_F(TooltipFieldTest, FiveNamesTooLongForTheFieldKeepALineEach)
{
    const QString longName(60, QLatin1Char('W'));
    field.setText(
        longName + QStringLiteral("1\rtwo\r") + longName + QStringLiteral("3\rfour\rfive\r"));

    ASSERT_EQ(field.shownLines().size(), 5);
    EXPECT_TRUE(field.shownLines()[0].endsWith(QLatin1String("W1")));
    EXPECT_TRUE(fits(field.shownLines()[0]));
    EXPECT_EQ(field.shownLines()[1], QStringLiteral("two"));
    EXPECT_EQ(field.shownLines()[4], QStringLiteral("five"));
}

TEST_F(TooltipFieldTest, ATextOfAMillionLettersIsKeptAndShowsItsEnds)
{
    const QString middle(1000000, QLatin1Char('x'));
    field.setText(QStringLiteral("/first/") + middle + QStringLiteral("/last"));

    EXPECT_EQ(field.text().size(), middle.size() + 12);
    EXPECT_TRUE(joinedLines().startsWith(QLatin1String("/first/")));
    EXPECT_TRUE(field.shownLines().back().endsWith(QLatin1String("/last")));
}

TEST_F(TooltipFieldTest, ASingleLineIsShortenedInItsMiddle)
{
    field.setWrapping(false);
    field.setText(QStringLiteral("begin") + QString(60, QLatin1Char('W')) + QStringLiteral("end"));

    ASSERT_EQ(field.shownLines().size(), 1);
    EXPECT_TRUE(field.shownLines()[0].startsWith(QLatin1String("begin")));
    EXPECT_TRUE(field.shownLines()[0].contains(QChar(0x2026)));
    EXPECT_TRUE(field.shownLines()[0].endsWith(QLatin1String("end")));
    EXPECT_TRUE(fits(field.shownLines()[0]));
}

TEST_F(TooltipFieldTest, AWiderFieldIsLaidOutAnew)
{
    field.setText(QString(40, QLatin1Char('W')));
    field.show();
    field.resize(2000, kRoomForFiveLines);

    EXPECT_EQ(field.neededHeight(), kPitch);
}

TEST_F(TooltipFieldTest, SmallerLettersAreLaidOutAnew)
{
    field.setText(QString(40, QLatin1Char('W')));
    const double needed = field.neededHeight();

    field.setTextPixels(kTextPixels / 2);

    EXPECT_LT(field.neededHeight(), needed);
}

TEST_F(TooltipFieldTest, DimmedTextTakesThePlaceholderColour)
{
    QPalette palette;
    palette.setColor(QPalette::PlaceholderText, Qt::red);
    palette.setColor(QPalette::WindowText, Qt::blue);
    field.setPalette(palette);
    field.setTextPixels(40);
    field.setText(QString(QChar(0x2588)));

    const auto colourInside
        = [this] { return field.grab().toImage().pixelColor(5, field.height() / 3); };
    EXPECT_EQ(colourInside(), QColor(Qt::blue));
    field.setDimmed(true);
    EXPECT_EQ(colourInside(), QColor(Qt::red));
}

} // namespace tessera
