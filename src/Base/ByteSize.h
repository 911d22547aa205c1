// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace tessera {

/// A number of bytes as the user reads it, in decimal units: "999 B", "2 KB", "1.2 GB". The same
/// in every locale.
[[nodiscard]] std::string formatSize(std::uint64_t bytes);

} // namespace tessera
