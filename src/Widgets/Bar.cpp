// SPDX-License-Identifier: MIT
#include "Widgets/Bar.h"

#include "Widgets/ColorHelper.h"
#include "Widgets/RoundedRect.h"

#include <QLinearGradient>
#include <QPainter>

namespace tessera {

namespace {

constexpr std::uint32_t kGrooveTopHex = 0xB1B1B1;
constexpr std::uint32_t kGrooveBottomHex = 0xE1E1E1;
constexpr std::uint32_t kOutlineHex = 0x858C85;
constexpr std::uint32_t kGrooveTopOnDarkHex = 0x29292D;
constexpr std::uint32_t kGrooveBottomOnDarkHex = 0x48484E;
constexpr std::uint32_t kOutlineOnDarkHex = 0x767D76;
constexpr std::uint32_t kLightGreenHex = 0x84E16D;
constexpr std::uint32_t kDarkGreenHex = 0x3F9834;

constexpr double kOutlineWidth = 1.0;
constexpr double kFillInset = 1.0;
constexpr double kFillRadiusLess = 1.0;

QPainterPath roundedRect(const Rect& rect, double radius)
{
    QPainterPath path;
    addRoundedRectToPath(path, rect, radius);
    return path;
}

QColor opaqueOr(const QColor& color, std::uint32_t usualHex)
{
    QColor opaque = color.isValid() ? color : colorWithHex(usualHex);
    opaque.setAlphaF(1.0F);
    return opaque;
}

} // namespace

void Bar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGroove(painter);
    paintFill(painter);
}

void Bar::paintGroove(QPainter& painter) const
{
    // The outline's middle runs half a point inside, so that the outline fills whole points.
    const Rect groove{0.5, 0.5, width() - kOutlineWidth, height() - kOutlineWidth};
    const QPainterPath path = roundedRect(groove, grooveRadius());
    const bool isOnDark = isDark(palette());
    painter.fillPath(
        path,
        gradient(
            colorWithHex(isOnDark ? kGrooveTopOnDarkHex : kGrooveTopHex),
            colorWithHex(isOnDark ? kGrooveBottomOnDarkHex : kGrooveBottomHex)));
    // A pen of one point would be drawn as a hairline, which is too thin in the bends.
    QPainterPathStroker outliner;
    outliner.setWidth(kOutlineWidth);
    painter.fillPath(
        outliner.createStroke(path), colorWithHex(isOnDark ? kOutlineOnDarkHex : kOutlineHex));
}

void Bar::paintFill(QPainter& painter) const
{
    const Rect fill{
        kFillInset,
        kFillInset,
        (width() - 2 * kFillInset) * m_percentFilled,
        height() - 2 * kFillInset};
    painter.fillPath(
        roundedRect(fill, grooveRadius() - kFillRadiusLess),
        gradient(opaqueOr(m_lightColor, kLightGreenHex), opaqueOr(m_darkColor, kDarkGreenHex)));
}

double Bar::grooveRadius() const
{
    return (height() - 2 * kFillInset) * 0.5;
}

QLinearGradient Bar::gradient(const QColor& top, const QColor& bottom) const
{
    QLinearGradient colors(0, 0, 0, height() - kOutlineWidth);
    colors.setColorAt(0, top);
    colors.setColorAt(1, bottom);
    return colors;
}

} // namespace tessera
