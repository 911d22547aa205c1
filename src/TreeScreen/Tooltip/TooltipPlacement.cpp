// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/TooltipPlacement.h"

namespace tessera {

namespace {

constexpr double kBelowPointer = 20;
constexpr double kAbovePointer = 8;
constexpr double kScreenMargin = 5;

} // namespace

QRectF tooltipFrame(QPointF pointer, QSizeF size, const QRectF& screen)
{
    double x = pointer.x();
    double y = pointer.y() + kBelowPointer;
    if (x + size.width() + kScreenMargin > screen.x() + screen.width()) {
        x -= size.width();
    }
    if (y + size.height() + kScreenMargin > screen.y() + screen.height()) {
        y -= size.height() + kBelowPointer + kAbovePointer;
    }
    return {QPointF(x, y), size};
}

} // namespace tessera
