// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QMainWindow;

namespace tessera {

class UserDefaults;

/// The place inside the frame that is nearest to the wanted one, both in points of one screen: of
/// the part of it that windows may use, what a window's title bar and borders leave.
QRect placeOnScreen(const QRect& wanted, const QRect& available);

/// Give the window the size and the place that it had when the program was used last; 1080 × 720
/// points, placed by the desktop, the first time. It always fits its screen, which may be a smaller
/// one than the last time.
void restoreFrame(QMainWindow& window, const UserDefaults& defaults);
void saveFrame(const QMainWindow& window, UserDefaults& defaults);

} // namespace tessera
