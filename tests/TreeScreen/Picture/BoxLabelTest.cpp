// SPDX-License-Identifier: MIT
#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "TreeScreen/Picture/Styles.h"
#include "support/LevelPicture.h"

#include <QFontMetricsF>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tessera {
namespace {

constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kTeal = 0xFF5AA89F;

const QString kFullBlock = QStringLiteral(u"\u2588");

/// Device pixels, counted from a baseline or from the left edge; the ends are exclusive.
struct Ink {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int height() const { return bottom - top; }
};

/// Where pixels of `image` differ, within `area`, from what their row has at `groundX`.
Ink inkIn(const QImage& image, const QRect& area, int groundX)
{
    Ink ink{area.right() + 1, area.bottom() + 1, area.left(), area.top()};
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixel(x, y) != image.pixel(groundX, y)) {
                ink.left = std::min(ink.left, x);
                ink.top = std::min(ink.top, y);
                ink.right = std::max(ink.right, x + 1);
                ink.bottom = std::max(ink.bottom, y + 1);
            }
        }
    }
    return ink;
}

Ink inkIn(const QImage& image, const QRect& area)
{
    return inkIn(image, area, area.left());
}

/// Labels at one device pixel a point and at two. What the font makes of a text is asked of
/// QPainter, which knows nothing of boxes.
class BoxLabel : public testing::TestWithParam<double> {
protected:
    BoxLabel()
    {
        m_font.setPixelSize(static_cast<int>(10 * GetParam()));
        m_font.setHintingPreference(QFont::PreferFullHinting);
        m_ascent = static_cast<int>(std::ceil(QFontMetricsF(m_font).ascent()));
        m_blockWidth = static_cast<int>(
            std::lround(QFontMetricsF(m_font).horizontalAdvance(kFullBlock.repeated(kBlocks))));
    }

    /// In device pixels, from the baseline.
    Ink inkOf(const QString& text) const
    {
        constexpr int kExtent = 200;
        constexpr int kBaseline = 100;
        QImage image(kExtent, kExtent, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(m_font);
        painter.drawText(kBaseline, kBaseline, text);
        painter.end();
        const Ink ink = inkIn(image, image.rect());
        return {ink.left, ink.top - kBaseline, ink.right, ink.bottom - kBaseline};
    }

    /// The picture of one box that has nothing but its label inside `inner`, in points.
    static Ink labelInk(File& node, long level, const Rect& rect, const Rect& inner)
    {
        return inkIn(pictureOf(node, level, rect).image(), pixels(inner));
    }

    static test::LevelPicture pictureOf(File& node, long level, const Rect& rect)
    {
        test::LevelPicture picture(level, GetParam());
        picture.add(&node, rect);
        picture.paint();
        return picture;
    }

    static QRect pixels(const Rect& points)
    {
        const double scale = GetParam();
        return QRectF(
                   points.x * scale, points.y * scale, points.width * scale, points.height * scale)
            .toAlignedRect();
    }

    static std::unique_ptr<Folder> folder(const QString& name)
    {
        auto node = makeNode<Folder>(name.toStdString());
        node->setHue(3);
        return node;
    }
    static std::unique_ptr<Folder> selectedFolder(const QString& name)
    {
        auto node = folder(name);
        node->setSelected(true);
        return node;
    }
    static std::unique_ptr<Document> document(const QString& name)
    {
        return makeNode<Document>(name.toStdString());
    }

    static constexpr int kBlocks = 10;
    QFont m_font = Styles::textAttributes().font;
    int m_ascent = 0;
    int m_blockWidth = 0; ///< of kBlocks full blocks
};

INSTANTIATE_TEST_SUITE_P(Scales, BoxLabel, testing::Values(1.0, 2.0));

TEST_P(BoxLabel, AFoldersNameStartsEightPointsFromTheLeftAndSevenFromTheTop)
{
    const int scale = static_cast<int>(GetParam());
    // The box's inside is (12, 12, 96, 56), so the name's place (20, 19, 85, 14).
    const auto node = selectedFolder(kFullBlock.repeated(5));
    const Ink ink = labelInk(*node, 0, {10, 10, 100, 60}, {14, 14, 90, 50});
    EXPECT_EQ(ink.left, 20 * scale);
    EXPECT_EQ(ink.top, 19 * scale + m_ascent + inkOf(kFullBlock).top);
}

TEST_P(BoxLabel, AFoldersNameMayBeElevenPointsNarrowerThanItsBox)
{
    const double fitting = m_blockWidth / GetParam();
    const auto node = selectedFolder(kFullBlock.repeated(kBlocks));
    // The middle of the last block, or what stands there when the name is cut.
    const auto lastBlock = [&](double boxWidth) {
        return pictureOf(*node, 0, {10, 10, boxWidth + 4, 60})
            .at(20 + fitting - fitting / kBlocks / 2, 24);
    };
    EXPECT_EQ(lastBlock(fitting + 11), 0xFFFFFFFF);
    EXPECT_EQ(lastBlock(fitting + 10), folderBoxColor(*node, 0).rgb());
}

TEST_P(BoxLabel, AFoldersLightEdgeLiesOnePointLowerAndBelowTheName)
{
    const int scale = static_cast<int>(GetParam());
    const auto node = folder(kFullBlock.repeated(5));
    const QImage image = pictureOf(*node, 0, {10, 10, 100, 60}).image();
    const int x = 40 * scale;
    const int end = 19 * scale + m_ascent + inkOf(kFullBlock).bottom;
    EXPECT_EQ(image.pixel(x, 24 * scale), kBlack);
    EXPECT_EQ(image.pixel(x, end - 2), kBlack);
    EXPECT_GT(qRed(image.pixel(x, end + scale - 1)), qRed(kTeal));
    EXPECT_EQ(image.pixel(x, end + scale), kTeal);
}

TEST_P(BoxLabel, ADocumentsNameStandsThreePointsBelowTheMiddleOfAllLines)
{
    const int scale = static_cast<int>(GetParam());
    // The page is (12, 12, 96, 56): floor(40 / 2) + 3 = 23 points down.
    const auto node = document(kFullBlock.repeated(5));
    const Ink ink = labelInk(*node, 0, {10, 10, 100, 60}, {14, 30, 90, 36});
    EXPECT_EQ(ink.top, 35 * scale + m_ascent + inkOf(kFullBlock).top);
}

TEST_P(BoxLabel, ADocumentsNameWithASizeBelowItIsRaisedBySevenPoints)
{
    const int scale = static_cast<int>(GetParam());
    // The page is (12, 12, 96, 90): floor(74 / 2) + 3 - 7 = 33 points down, and 16 more.
    auto node = document(kFullBlock.repeated(5));
    node->setTotalAllocation(1000);
    const QString size = QStringLiteral("1.0 KB");
    const Rect box{10, 10, 100, 94};
    EXPECT_EQ(
        labelInk(*node, 0, box, {14, 44, 90, 14}).top,
        45 * scale + m_ascent + inkOf(kFullBlock).top);
    const Ink below = labelInk(*node, 0, box, {14, 60, 90, 20});
    EXPECT_EQ(below.top, 61 * scale + m_ascent + inkOf(size).top);
    EXPECT_EQ(below.bottom, 61 * scale + m_ascent + inkOf(size).bottom);
}

TEST_P(BoxLabel, ADocumentsNameKeepsFivePointsFromBothSides)
{
    const double fitting = m_blockWidth / GetParam();
    const auto node = document(kFullBlock.repeated(kBlocks));
    const auto reachesBothEnds = [&](double pageWidth) {
        const auto picture = pictureOf(*node, 0, {10, 10, pageWidth + 4, 60});
        return qGreen(picture.at(17.5, 41)) < 0x80
            && qGreen(picture.at(12 + pageWidth - 5.5, 41)) < 0x80;
    };
    EXPECT_TRUE(reachesBothEnds(fitting + 10));
    EXPECT_FALSE(reachesBothEnds(fitting + 9));
}

TEST_P(BoxLabel, StackedAccentsKeepTheirTop)
{
    const Rect box{10, 10, 100, 60};
    for (const QString& name :
         {QStringLiteral(u"\u1EBE"), QStringLiteral(u"\u1EB4"), QStringLiteral("Ag")}) {
        const int whole = inkOf(name).height();
        EXPECT_EQ(labelInk(*selectedFolder(name), 0, box, {14, 14, 90, 50}).height(), whole);
        EXPECT_EQ(labelInk(*document(name), 0, box, {14, 30, 90, 36}).height(), whole);
    }
}

TEST_P(BoxLabel, ManyAccentsDoNotPushALetterOutOfItsLabel)
{
    const Rect box{10, 10, 100, 60};
    const Rect foot{14, 28, 90, 5};
    const Ink plain = labelInk(*selectedFolder(QStringLiteral("Hy")), 0, box, foot);
    const QString marks = QString(QChar(0x0302)).repeated(20);
    const Ink marked = labelInk(*selectedFolder(QStringLiteral("Hy") + marks), 0, box, foot);
    EXPECT_LE(std::abs(marked.bottom - plain.bottom), 2 * GetParam());
}

TEST_P(BoxLabel, ARightToLeftNameHasItsEllipsisAtTheLeft)
{
    const int scale = static_cast<int>(GetParam());
    for (const char* letter : {"\xD7\xA9", "2 \xD7\xA9"}) {
        const auto node = selectedFolder(QString::fromUtf8(letter).repeated(40));
        const QImage image = pictureOf(*node, 0, {10, 10, 100, 60}).image();
        const Ink label = inkIn(image, pixels({14, 14, 92, 50}));
        const auto heightOf = [&](int from) {
            return inkIn(image, QRect(from, label.top, 4 * scale, label.height()), 14 * scale)
                .height();
        };
        // Dots are low, letters are high.
        EXPECT_LE(heightOf(label.left - scale), 2 * scale);
        EXPECT_GE(heightOf(label.right - 4 * scale), 5 * scale);
    }
}

TEST_P(BoxLabel, ALeftToRightNameHasItsEllipsisAtTheRight)
{
    const int scale = static_cast<int>(GetParam());
    const auto node = selectedFolder(QStringLiteral("H").repeated(40));
    const QImage image = pictureOf(*node, 0, {10, 10, 100, 60}).image();
    const Ink label = inkIn(image, pixels({14, 14, 92, 50}));
    EXPECT_LE(
        inkIn(
            image, QRect(label.right - 2 * scale, label.top, 2 * scale, label.height()), 14 * scale)
            .height(),
        2 * scale);
}

} // namespace
} // namespace tessera
