// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/CenteredPathComponentCell.h"

#include "support/Fakes/FakeIconProvider.h"
#include "support/MakeTree.h"
#include "support/ParameterNames.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace tessera {

namespace {

constexpr QRgb kBackground = 0xFF808080;
constexpr QRgb kIcon = 0xFFFF0000;
constexpr QRgb kDarkGray = 0xFF555555;
constexpr QSize kPictureSize{220, 40};
constexpr Rect kFrame{10, 6, 100, 18};

QPalette lightPalette()
{
    return {Qt::black, Qt::white};
}

QPalette darkPalette()
{
    QPalette palette(QColor(40, 40, 40));
    palette.setColor(QPalette::WindowText, QColor(230, 230, 230));
    return palette;
}

class CenteredPathComponentCellTest : public testing::TestWithParam<double> {
protected:
    void paint(const Rect& frame = kFrame, const QPalette& palette = lightPalette())
    {
        image = QImage((QSizeF(kPictureSize) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(kBackground);
        QPainter painter(&image);
        cell.drawInteriorWithFrame(frame, painter, palette);
    }

    QRgb at(double x, double y) const
    {
        return image.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale));
    }

    /// The smallest rectangle, in points, that holds every pixel of another colour than the
    /// background's among those in `area`.
    QRectF painted(const QRectF& area) const
    {
        QRect found;
        for (int y = static_cast<int>(area.top() * scale); y < area.bottom() * scale; ++y) {
            for (int x = static_cast<int>(area.left() * scale); x < area.right() * scale; ++x) {
                if (image.pixel(x, y) != kBackground) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return {QPointF(found.topLeft()) / scale, QSizeF(found.size()) / scale};
    }

    bool isPainted(const QRectF& area) const { return !painted(area).isEmpty(); }

    static QRectF titleArea(const Rect& frame) { return {frame.x + 19, 0, frame.width - 32, 40}; }

    test::FakeIconProvider icons;
    CenteredPathComponentCell cell{icons};
    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/anna", "docs/ ( pictures/ ( a:1200000 ) ) b:50");
    double scale = 1;
    QImage image;
};

class CenteredPathComponentCellAtScale : public CenteredPathComponentCellTest {
protected:
    CenteredPathComponentCellAtScale() { scale = GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(
    Scales, CenteredPathComponentCellAtScale, testing::Values(1.0, 2.0), test::kNameOfScale);

std::vector<QString> titles(const std::vector<CenteredPathComponentCell>& cells)
{
    std::vector<QString> result;
    std::transform(cells.begin(), cells.end(), std::back_inserter(result), [](const auto& cell) {
        return cell.title();
    });
    return result;
}

} // namespace

TEST_F(CenteredPathComponentCellTest, ItsFontHasElevenPixels)
{
    EXPECT_EQ(cell.font().pixelSize(), 11);
}

TEST_F(CenteredPathComponentCellTest, AFileIsShownByItsNameAndIcon)
{
    cell.setFile(Url("/home/anna/a\xFF.txt", false));

    EXPECT_EQ(cell.title(), QStringLiteral("a\uFFFD.txt"));
    EXPECT_EQ(cell.url(), Url("/home/anna/a\xFF.txt", false));
    EXPECT_EQ(cell.image().deviceIndependentSize(), QSizeF(16, 16));
}

TEST_F(CenteredPathComponentCellTest, AFolderIsShownByItsNameAlone)
{
    cell.setFolder(static_cast<Folder&>(test::at(*tree, "docs")));

    EXPECT_EQ(cell.title(), QStringLiteral("docs"));
    EXPECT_EQ(cell.url(), Url("/home/anna/docs", true));
}

TEST_F(CenteredPathComponentCellTest, TheCurrentFolderIsShownWithItsSize)
{
    cell.setTag(100);
    cell.setFolder(static_cast<Folder&>(test::at(*tree, "docs")));

    EXPECT_EQ(cell.title(), QStringLiteral("docs (1.2 MB)"));
}

TEST_F(CenteredPathComponentCellTest, TheFileSystemsRootIsASlash)
{
    const auto root = test::makeTree("/", "a:1");
    cell.setFolder(*root);

    EXPECT_EQ(cell.title(), QStringLiteral("/"));
}

TEST_F(CenteredPathComponentCellTest, ItsTextIsBlackAboveHalfTransparentWhite)
{
    EXPECT_EQ(cell.foreground(lightPalette()).foreground, QColor(0, 0, 0));
    EXPECT_EQ(cell.background(lightPalette()).foreground, QColor(255, 255, 255, 127));
}

TEST_F(CenteredPathComponentCellTest, ItsTextIsReadableOnDarkWindows)
{
    EXPECT_EQ(cell.foreground(darkPalette()).foreground, QColor(230, 230, 230));
    EXPECT_EQ(cell.background(darkPalette()).foreground, QColor(0, 0, 0, 127));
}

TEST_F(CenteredPathComponentCellTest, BothTextsAreShortenedAtTheTailInItsFont)
{
    for (const TextAttributes& attributes :
         {cell.foreground(lightPalette()), cell.background(lightPalette())}) {
        EXPECT_EQ(attributes.elideMode, Qt::ElideRight);
        EXPECT_EQ(attributes.font, cell.font());
    }
}

TEST_P(CenteredPathComponentCellAtScale, TheIconFillsSixteenPointsOnePointBelowTheTop)
{
    cell.setFile(Url("/x", true));
    paint();

    EXPECT_EQ(painted({0, 0, 28, 40}), QRectF(10, 7, 16, 16));
    EXPECT_EQ(at(10, 7), kIcon);
    EXPECT_EQ(at(25.5, 22.5), kIcon);
}

TEST_P(CenteredPathComponentCellAtScale, TheChevronPointsRightAtTheEnd)
{
    cell.setFile(Url("/x", true));
    paint();

    // From (95, 7) to its tip at (103, 16) and back to (95, 25).
    const QRectF chevron = painted({90, 0, 40, 40});
    EXPECT_EQ(chevron, QRectF(95, 7, 8, 18));
    // Its arms are a point wide at the tip, which no pixel need be filled by.
    EXPECT_NEAR(qRed(at(102.25, 16)), qRed(kDarkGray), 0x20);
    EXPECT_EQ(at(95.25, 16), kBackground);
}

TEST_F(CenteredPathComponentCellTest, TheCurrentFolderHasNoChevron)
{
    cell.setTag(CenteredPathComponentCell::kCurrentFolderTag);
    cell.setFile(Url("/x", true));
    paint();

    EXPECT_FALSE(isPainted({90, 0, 40, 40}));
}

TEST_P(CenteredPathComponentCellAtScale, TheTextStandsThreePointsBelowTheTopOverItsShadow)
{
    cell.setFile(Url("/II", true));
    paint();

    QImage expected(image.size(), image.format());
    expected.setDevicePixelRatio(scale);
    expected.fill(kBackground);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(cell.font());
    const double ascent = QFontMetricsF(cell.font()).ascent();
    painter.setPen(QColor(255, 255, 255, 127));
    painter.drawText(QPointF(29, 10 + ascent), QStringLiteral("II"));
    painter.setPen(Qt::black);
    painter.drawText(QPointF(29, 9 + ascent), QStringLiteral("II"));
    painter.end();
    const QRect area = QTransform::fromScale(scale, scale).mapRect(QRect(28, 0, 60, 40));
    EXPECT_EQ(image.copy(area), expected.copy(area));
}

TEST_F(CenteredPathComponentCellTest, ALongTextEndsThirteenPointsBeforeTheFramesEnd)
{
    cell.setTag(CenteredPathComponentCell::kCurrentFolderTag);
    cell.setFile(Url("/" + std::string(50, 'n'), true));
    paint();

    EXPECT_LE(painted(QRectF(28, 0, 190, 40)).right(), kFrame.x + 19 + kFrame.width - 32);
}

TEST_F(CenteredPathComponentCellTest, NarrowerThanThirtySixPointsItShowsItsIconAndChevronAlone)
{
    cell.setFile(Url("/III", true));
    const Rect narrow{10, 6, 35.5, 18};
    paint(narrow);
    // Between the icon's end and the chevron's begin.
    EXPECT_FALSE(isPainted({27, 0, 3, 40}));
    EXPECT_TRUE(isPainted({10, 0, 16, 40}));
    EXPECT_TRUE(isPainted({30.5, 0, 8, 40}));
}

TEST_F(CenteredPathComponentCellTest, AtThirtySixPointsThereIsNoTextYet)
{
    cell.setTag(CenteredPathComponentCell::kCurrentFolderTag);
    cell.setFile(Url("/III", true));
    paint({10, 6, 36, 18});
    EXPECT_FALSE(isPainted({26, 0, 190, 40}));

    paint({10, 6, 60, 18});
    EXPECT_TRUE(isPainted({26, 0, 190, 40}));
}

TEST_F(CenteredPathComponentCellTest, ItsNaturalWidthHoldsItsIconItsTextAndTheRoomAround)
{
    cell.setFile(Url("/some name", true));
    const double text = QFontMetricsF(cell.font()).horizontalAdvance(cell.title());

    EXPECT_EQ(cell.cellSize().width(), 32 + std::ceil(text));
    EXPECT_GE(cell.cellSize().height(), 18);
}

TEST_F(CenteredPathComponentCellTest, ThePathGoesFromTheRootToTheCurrentFolder)
{
    const auto cells
        = pathComponentCells(static_cast<Folder&>(test::at(*tree, "docs/pictures")), icons);

    EXPECT_EQ(
        titles(cells),
        (std::vector<QString>{
            QStringLiteral("anna"), QStringLiteral("docs"), QStringLiteral("pictures (1.2 MB)")}));
    EXPECT_EQ(cells.at(0).url(), Url("/home/anna", true));
    EXPECT_NE(cells.at(1).tag(), 100);
    EXPECT_EQ(cells.at(2).tag(), 100);
}

TEST_F(CenteredPathComponentCellTest, AtTheRootThePathIsTheRootWithItsSize)
{
    const auto cells = pathComponentCells(*tree, icons);

    EXPECT_EQ(titles(cells), std::vector<QString>{QStringLiteral("anna (1.2 MB)")});
    EXPECT_EQ(cells.at(0).tag(), 100);
}

} // namespace tessera
