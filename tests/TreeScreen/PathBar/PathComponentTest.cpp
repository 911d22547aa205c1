// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/PathComponent.h"

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

class PathComponentTest : public testing::TestWithParam<double> {
protected:
    void paint(const Rect& frame = kFrame, const QPalette& palette = lightPalette())
    {
        image = QImage((QSizeF(kPictureSize) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(kBackground);
        QPainter painter(&image);
        component.draw(frame, painter, palette);
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
    PathComponent component{icons};
    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/anna", "docs/ ( pictures/ ( a:1200000 ) ) b:50");
    double scale = 1;
    QImage image;
};

class PathComponentAtScale : public PathComponentTest {
protected:
    PathComponentAtScale() { scale = GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(
    Scales, PathComponentAtScale, testing::Values(1.0, 2.0), test::kNameOfScale);

std::vector<QString> titles(const std::vector<PathComponent>& components)
{
    std::vector<QString> result;
    std::transform(
        components.begin(),
        components.end(),
        std::back_inserter(result),
        [](const auto& component) { return component.title(); });
    return result;
}

} // namespace

TEST_F(PathComponentTest, ItsFontHasElevenPixels)
{
    EXPECT_EQ(component.font().pixelSize(), 11);
}

TEST_F(PathComponentTest, AFileIsShownByItsNameAndIcon)
{
    component.setFile(Url("/home/anna/a\xFF.txt", false));

    EXPECT_EQ(component.title(), QStringLiteral("a\uFFFD.txt"));
    EXPECT_EQ(component.url(), Url("/home/anna/a\xFF.txt", false));
    EXPECT_EQ(component.image().deviceIndependentSize(), QSizeF(16, 16));
}

TEST_F(PathComponentTest, AFolderIsShownByItsNameAlone)
{
    component.setFolder(static_cast<Folder&>(test::at(*tree, "docs")));

    EXPECT_EQ(component.title(), QStringLiteral("docs"));
    EXPECT_EQ(component.url(), Url("/home/anna/docs", true));
}

TEST_F(PathComponentTest, TheCurrentFolderIsShownWithItsSize)
{
    component.setTag(100);
    component.setFolder(static_cast<Folder&>(test::at(*tree, "docs")));

    EXPECT_EQ(component.title(), QStringLiteral("docs (1.2 MB)"));
}

TEST_F(PathComponentTest, TheFileSystemsRootIsASlash)
{
    const auto root = test::makeTree("/", "a:1");
    component.setFolder(*root);

    EXPECT_EQ(component.title(), QStringLiteral("/"));
}

TEST_F(PathComponentTest, ItsTextIsBlackAboveHalfTransparentWhite)
{
    EXPECT_EQ(component.foreground(lightPalette()).foreground, QColor(0, 0, 0));
    EXPECT_EQ(component.background(lightPalette()).foreground, QColor(255, 255, 255, 127));
}

TEST_F(PathComponentTest, ItsTextIsReadableOnDarkWindows)
{
    EXPECT_EQ(component.foreground(darkPalette()).foreground, QColor(230, 230, 230));
    EXPECT_EQ(component.background(darkPalette()).foreground, QColor(0, 0, 0, 127));
}

TEST_F(PathComponentTest, BothTextsAreShortenedAtTheTailInItsFont)
{
    for (const TextAttributes& attributes :
         {component.foreground(lightPalette()), component.background(lightPalette())}) {
        EXPECT_EQ(attributes.elideMode, Qt::ElideRight);
        EXPECT_EQ(attributes.font, component.font());
    }
}

TEST_P(PathComponentAtScale, TheIconFillsSixteenPointsOnePointBelowTheTop)
{
    component.setFile(Url("/x", true));
    paint();

    EXPECT_EQ(painted({0, 0, 28, 40}), QRectF(10, 7, 16, 16));
    EXPECT_EQ(at(10, 7), kIcon);
    EXPECT_EQ(at(25.5, 22.5), kIcon);
}

TEST_P(PathComponentAtScale, TheChevronPointsRightAtTheEnd)
{
    component.setFile(Url("/x", true));
    paint();

    // From (95, 7) to its tip at (103, 16) and back to (95, 25).
    const QRectF chevron = painted({90, 0, 40, 40});
    EXPECT_EQ(chevron, QRectF(95, 7, 8, 18));
    // Its arms are a point wide at the tip, which no pixel need be filled by.
    EXPECT_NEAR(qRed(at(102.25, 16)), qRed(kDarkGray), 0x20);
    EXPECT_EQ(at(95.25, 16), kBackground);
}

TEST_F(PathComponentTest, TheCurrentFolderHasNoChevron)
{
    component.setTag(PathComponent::kCurrentFolderTag);
    component.setFile(Url("/x", true));
    paint();

    EXPECT_FALSE(isPainted({90, 0, 40, 40}));
}

TEST_P(PathComponentAtScale, TheTextStandsThreePointsBelowTheTopOverItsShadow)
{
    component.setFile(Url("/II", true));
    paint();

    QImage expected(image.size(), image.format());
    expected.setDevicePixelRatio(scale);
    expected.fill(kBackground);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(component.font());
    const double ascent = QFontMetricsF(component.font()).ascent();
    painter.setPen(QColor(255, 255, 255, 127));
    painter.drawText(QPointF(29, 10 + ascent), QStringLiteral("II"));
    painter.setPen(Qt::black);
    painter.drawText(QPointF(29, 9 + ascent), QStringLiteral("II"));
    painter.end();
    const QRect area = QTransform::fromScale(scale, scale).mapRect(QRect(28, 0, 60, 40));
    EXPECT_EQ(image.copy(area), expected.copy(area));
}

TEST_F(PathComponentTest, ALongTextEndsThirteenPointsBeforeTheFramesEnd)
{
    component.setTag(PathComponent::kCurrentFolderTag);
    component.setFile(Url("/" + std::string(50, 'n'), true));
    paint();

    EXPECT_LE(painted(QRectF(28, 0, 190, 40)).right(), kFrame.x + 19 + kFrame.width - 32);
}

TEST_F(PathComponentTest, NarrowerThanThirtySixPointsItShowsItsIconAndChevronAlone)
{
    component.setFile(Url("/III", true));
    const Rect narrow{10, 6, 35.5, 18};
    paint(narrow);
    // Between the icon's end and the chevron's begin.
    EXPECT_FALSE(isPainted({27, 0, 3, 40}));
    EXPECT_TRUE(isPainted({10, 0, 16, 40}));
    EXPECT_TRUE(isPainted({30.5, 0, 8, 40}));
}

TEST_F(PathComponentTest, AtThirtySixPointsThereIsNoTextYet)
{
    component.setTag(PathComponent::kCurrentFolderTag);
    component.setFile(Url("/III", true));
    paint({10, 6, 36, 18});
    EXPECT_FALSE(isPainted({26, 0, 190, 40}));

    paint({10, 6, 60, 18});
    EXPECT_TRUE(isPainted({26, 0, 190, 40}));
}

TEST_F(PathComponentTest, ItsNaturalWidthHoldsItsIconItsTextAndTheRoomAround)
{
    component.setFile(Url("/some name", true));
    const double text = QFontMetricsF(component.font()).horizontalAdvance(component.title());

    EXPECT_EQ(component.naturalSize().width(), 32 + std::ceil(text));
    EXPECT_GE(component.naturalSize().height(), 18);
}

TEST_F(PathComponentTest, ThePathGoesFromTheRootToTheCurrentFolder)
{
    const auto components
        = pathComponents(static_cast<Folder&>(test::at(*tree, "docs/pictures")), icons);

    EXPECT_EQ(
        titles(components),
        (std::vector<QString>{
            QStringLiteral("anna"), QStringLiteral("docs"), QStringLiteral("pictures (1.2 MB)")}));
    EXPECT_EQ(components.at(0).url(), Url("/home/anna", true));
    EXPECT_NE(components.at(1).tag(), 100);
    EXPECT_EQ(components.at(2).tag(), 100);
}

TEST_F(PathComponentTest, AtTheRootThePathIsTheRootWithItsSize)
{
    const auto components = pathComponents(*tree, icons);

    EXPECT_EQ(titles(components), std::vector<QString>{QStringLiteral("anna (1.2 MB)")});
    EXPECT_EQ(components.at(0).tag(), 100);
}

} // namespace tessera
