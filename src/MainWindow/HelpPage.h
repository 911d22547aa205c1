// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// The pages of the program's help.
enum class HelpPage : std::uint8_t { Features, Questions };

} // namespace tessera
