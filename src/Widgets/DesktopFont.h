// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// How much larger than usual the desktop's font is: 1 for letters of 13 pixels, and never less.
/// Main thread only.
double desktopFontScale();

/// A height, of letters or of what holds them, that is so many points at the usual font.
int withDesktopFont(int points);

/// The same for widths, which grow only half as much, and not by more than 4 in 10: texts can be
/// shortened, and the window has no more room.
int widthWithDesktopFont(int points);

} // namespace tessera
