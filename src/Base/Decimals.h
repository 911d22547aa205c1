// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

/// The value with so many decimals behind a point, in every locale. Not as printf has it, which
/// writes the decimal sign of the user's.
[[nodiscard]] std::string decimals(double value, int precision);

} // namespace tessera
