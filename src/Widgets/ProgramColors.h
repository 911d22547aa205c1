// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace tessera {

/// The colours of windows and what is in them, made for the Fusion style. Texts that can be used
/// have a contrast of at least 4.5 : 1 to what they stand on.
QPalette lightProgramColors();
QPalette darkProgramColors();

/// The same with what is selected in that colour, and the text on it black or white, whichever can
/// be read better. What cannot be used keeps its colours.
QPalette withAccent(const QPalette& colors, const QColor& accent);

/// The same for menus and boxes to tick. The style makes their outlines by darkening the window's
/// colour, and could not be seen to have any on a dark ground.
QPalette withVisibleLines(const QPalette& colors);

} // namespace tessera
