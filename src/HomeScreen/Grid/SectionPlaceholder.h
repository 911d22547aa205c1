// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <memory>

namespace tessera {

/// What stands in the place of a section's items while there are none: a sentence, in lines as
/// wide as the section, that never takes the mouse from the grid.
std::unique_ptr<QWidget> sectionPlaceholder(const QString& text);

} // namespace tessera
