// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tessera {

/// The title of the main window for QWidget::setWindowTitle(): what it shows and then the
/// program's name, by which Qt sees that it need not add that; the program's name alone for an
/// empty text.
[[nodiscard]] QString mainWindowTitle(const QString& shown);

} // namespace tessera
