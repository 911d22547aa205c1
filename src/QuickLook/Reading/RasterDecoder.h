// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <stop_token>
#include <vector>

namespace tessera {

class ReadableFile;

/// A size in pixels.
struct PixelSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// What to make of a file's content.
struct RasterRequest {
    enum class Kind : std::uint8_t {
        Picture, ///< one image, as large as it is or as fits
        Pages, ///< the first pages of a document, each as wide as the limit
    };

    Kind kind = Kind::Picture;
    PixelSize limit; ///< no raster is wider or higher
};

/// Pixels from top left, line by line without gaps: four bytes each, a number 0xAARRGGBB whose
/// colours are multiplied by alpha.
struct Raster {
    PixelSize size;
    bool isOpaque = false; ///< alpha means nothing
    std::vector<char> pixels;
};

enum class RasterOutcome : std::uint8_t {
    Whole, ///< all there is to say
    CutShort, ///< the decoder failed, or ran into its limits, before it had said everything
    Refused, ///< what it said does not add up; nothing of it is kept
    NotStarted, ///< there was nobody to decode
};

/// What became of a request. The sizes are what the file's bytes claim; the rasters keep to the
/// request's limit.
struct RasterAnswer {
    RasterOutcome outcome = RasterOutcome::Whole;
    std::optional<PixelSize> pictureSize; ///< a picture's own, upright; none if it is no picture
    std::int32_t pageCount = 0; ///< pages of the whole document
    std::vector<Raster> rasters; ///< the picture, or pages in their order; may be missing
};

/// Decodes files that may be made to break a decoder.
class RasterDecoder {
public:
    RasterDecoder() = default;
    RasterDecoder(const RasterDecoder&) = delete;
    RasterDecoder& operator=(const RasterDecoder&) = delete;
    virtual ~RasterDecoder() = default;

    /// Takes bounded memory and time, except that a file system may not answer. Once `stop` is
    /// requested it ends at once, with whatever it has. Callable from any thread, by several at
    /// once.
    [[nodiscard]] virtual RasterAnswer decode(
        const ReadableFile& file,
        const RasterRequest& request,
        const std::stop_token& stop) const = 0;
};

} // namespace tessera
