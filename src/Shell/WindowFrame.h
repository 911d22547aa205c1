// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

namespace tessera {

class UserDefaults;

/// Give the window the size and the place that it had when the program was used last, as far as
/// that still fits a screen; 1080 × 720 points, placed by the desktop, the first time.
void restoreFrame(QMainWindow& window, const UserDefaults& defaults);
void saveFrame(const QMainWindow& window, UserDefaults& defaults);

} // namespace tessera
