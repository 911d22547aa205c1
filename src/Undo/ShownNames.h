// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace tessera {

/// A file's name as one line of a menu or of a button shows it: as displayText(), but not longer
/// than fits there, and no letter of it is a mnemonic. Needs an application object.
[[nodiscard]] QString nameForMenu(std::string_view name);

} // namespace tessera
