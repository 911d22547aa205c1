// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/RasterDecoder.h"

#include <QRgb>

#include <cstddef>
#include <cstring>

namespace tessera::test {

/// Pixels of one colour.
inline Raster opaqueRaster(PixelSize size, QRgb colour)
{
    const std::size_t count
        = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    Raster raster{size, true, std::vector<char>(count * sizeof(colour))};
    for (std::size_t i = 0; i < count; ++i) {
        std::memcpy(raster.pixels.data() + i * sizeof(colour), &colour, sizeof(colour));
    }
    return raster;
}

} // namespace tessera::test
