// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

class UserDefaults;

/// How much the tooltip says of the box under the pointer. The settings hold these numbers.
enum class TooltipType : std::uint8_t { None = 0, Short = 1, Full = 2 };

/// What the settings ask for; a number that is none of these counts as the nearest.
[[nodiscard]] TooltipType tooltipType(const UserDefaults& defaults);
void setTooltipType(UserDefaults& defaults, TooltipType type);

} // namespace tessera
