// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QPalette;
class QRect;

namespace tessera {

/// Fills what lies behind a selected item of the home screen; the frame is the item's own.
void paintSelectionBackground(
    QPainter& painter, const QRect& frame, const QPalette& palette, bool isInMainWindow);

} // namespace tessera
