// SPDX-License-Identifier: MIT
#include "Shell/SelectionBackground.h"

#include "Shell/HomeColors.h"
#include "TreeView/RoundedRect.h"

#include <QPainter>
#include <QRect>

namespace tessera {

namespace {

constexpr int kInset = 2;
constexpr double kRadius = 4;

} // namespace

void paintSelectionBackground(
    QPainter& painter, const QRect& frame, const QPalette& palette, bool isInMainWindow)
{
    const QRectF inside = frame.adjusted(kInset, kInset, -kInset, -kInset);
    const HomeColors colors(palette);
    QPainterPath path;
    addRoundedRectToPath(path, {inside.x(), inside.y(), inside.width(), inside.height()}, kRadius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, isInMainWindow ? colors.selection : colors.inactiveSelection);
}

} // namespace tessera
