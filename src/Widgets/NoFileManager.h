// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Alert.h"

#include <string_view>

namespace tessera {

/// What tells the user that no program of the desktop shows the item in its folder. The name is
/// bytes.
[[nodiscard]] AlertText noFileManager(std::string_view itemName);

} // namespace tessera
