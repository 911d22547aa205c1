// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessera {

/// What the program that decodes says, piece by piece; a raster's pixels follow its frame. Both
/// ends run on one machine and are built together, so numbers are as they lie in memory.
///
/// Of a picture: its size, then its raster if it could be decoded. Of a document: how many pages it
/// has, then rasters of the first ones. The end follows always; whoever does not get there has
/// failed on the way.
struct RasterFrame {
    enum class Kind : std::uint32_t {
        PictureSize = 1, ///< `width` and `height` are the picture's own
        PageCount, ///< `count` is the number of pages of the whole document
        Raster, ///< `width` × `height` pixels follow
        OpaqueRaster, ///< likewise, and their alpha means nothing
        End,
    };

    Kind kind = Kind::End;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t count = 0;
};

inline constexpr std::size_t kBytesPerPixel = 4;

/// Of one answer, all rasters together. Ten pages of the usual shapes on a screen of three pixels a
/// point are less.
inline constexpr std::size_t kMostRasterBytes = std::size_t{256} * 1024 * 1024;

/// Of a raster, in pixels. Screens are smaller, and products of two such numbers fit everywhere.
inline constexpr std::int32_t kMostSide = 32768;

inline constexpr std::size_t kMostPages = 10;

} // namespace tessera
