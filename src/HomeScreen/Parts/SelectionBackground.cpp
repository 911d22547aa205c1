// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/SelectionBackground.h"

#include "HomeScreen/Parts/HomeColors.h"
#include "Widgets/RoundedRect.h"

#include <QPainter>
#include <QRect>

namespace tessera {

namespace {

constexpr double kInset = 2;
constexpr double kCornerRadius = 4;
constexpr double kOutlineWidth = 2;
constexpr double kAroundIcon = 1;

QPainterPath roundedInside(const QRectF& frame, double inset)
{
    const QRectF inside = frame.adjusted(inset, inset, -inset, -inset);
    QPainterPath path;
    addRoundedRectToPath(
        path, {inside.x(), inside.y(), inside.width(), inside.height()}, kCornerRadius);
    return path;
}

} // namespace

void paintSelectionBackground(
    QPainter& painter, const QRect& frame, const QPalette& palette, bool isInMainWindow)
{
    const HomeColors colors(palette);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(
        roundedInside(frame, kInset), isInMainWindow ? colors.selection : colors.inactiveSelection);
}

void paintIconBackground(QPainter& painter, const QRect& icon, const QPalette& palette)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(roundedInside(icon, -kAroundIcon), palette.color(QPalette::Base));
}

void paintSelectionOutline(QPainter& painter, const QRect& frame, const QPalette& palette)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(
        roundedInside(frame, kInset + kOutlineWidth / 2),
        QPen(HomeColors(palette).selection, kOutlineWidth));
}

} // namespace tessera
