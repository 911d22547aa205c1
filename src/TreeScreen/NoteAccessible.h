// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tessera {

/// Has screen readers take the widget for an alert: they read out its accessible name whenever it
/// comes into sight.
void readOutWhenShown(QWidget& note);

} // namespace tessera
