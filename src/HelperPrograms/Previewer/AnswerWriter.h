// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/RasterFrame.h"

#include <functional>
#include <span>

class QImage;
class QSize;

namespace tessera {

/// Writes an answer, frame by frame. Every function says whether somebody still takes it.
class AnswerWriter {
public:
    using WriteBytes = std::function<bool(std::span<const char>)>;

    explicit AnswerWriter(WriteBytes write);

    [[nodiscard]] bool writePictureSize(const QSize& size);
    [[nodiscard]] bool writePageCount(int count);
    /// Nothing is written, and nothing amiss, when an answer has no room for it any more.
    [[nodiscard]] bool writeRaster(const QImage& image);
    [[nodiscard]] bool writeEnd();

private:
    bool write(const RasterFrame& frame) const;

    WriteBytes m_write;
    std::size_t m_rasterBytes = 0;
};

} // namespace tessera
