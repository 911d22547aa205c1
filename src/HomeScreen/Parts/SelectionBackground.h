// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QPalette;
class QRect;

namespace tessera {

/// Fills what lies behind a selected item of the home screen; the frame is the item's own.
void paintSelectionBackground(
    QPainter& painter, const QRect& frame, const QPalette& palette, bool isInMainWindow);

/// Fills what lies behind the icon of a selected item: icons are made for the usual background, and
/// many are as blue as the selection.
void paintIconBackground(QPainter& painter, const QRect& icon, const QPalette& palette);

/// The outline of the same shape, around the item that a key would select.
void paintSelectionOutline(QPainter& painter, const QRect& frame, const QPalette& palette);

} // namespace tessera
