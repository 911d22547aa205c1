// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace tessera {

enum class ByteUnit { Byte, Kilobyte, Megabyte, Gigabyte, Terabyte };

/// A number of bytes in the unit that suits it.
struct ByteFigure {
    std::string number; ///< "1.2": rounded, with a point in every locale
    ByteUnit unit = ByteUnit::Byte;
};

[[nodiscard]] ByteFigure byteFigure(std::uint64_t bytes);

/// For logs and scripts: "999 B", "2 KB", "1.2 GB", in decimal units and the same in every locale.
/// Windows show a SizeText.
[[nodiscard]] std::string formatSize(std::uint64_t bytes);

} // namespace tessera
