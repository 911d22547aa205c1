// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace tessera {

/// A number of bytes as windows show it, with the decimal sign and digits of the user's locale and
/// the units of the user's language: "1.2 GB", "1,2 Go".
[[nodiscard]] QString sizeText(std::uint64_t bytes);

} // namespace tessera
