// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace tessera {

/// Where a tooltip of the given size goes for a pointer: to its right and below it, or where the
/// screen ends there, to its left and above it. Everything in points from the top left of the
/// desktop; an empty screen stands for none.
QRectF tooltipFrame(QPointF pointer, QSizeF size, const QRectF& screen);

} // namespace tessera
