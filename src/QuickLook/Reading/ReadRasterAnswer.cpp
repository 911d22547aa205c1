// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/ReadRasterAnswer.h"

#include "QuickLook/Reading/RasterFrame.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kFrameBytes = sizeof(RasterFrame);

bool isPositive(const PixelSize& size)
{
    return size.width > 0 && size.height > 0;
}

class AnswerReader {
public:
    AnswerReader(const RasterRequest& request, const ReadBytes& read)
        : m_request(request)
        , m_read(read)
    {
    }

    RasterAnswer answer()
    {
        while (const std::optional<RasterFrame> frame = nextFrame()) {
            if (frame->kind == RasterFrame::Kind::End) {
                return std::move(m_answer);
            }
            if (!isPlausible(*frame)) {
                return {RasterOutcome::Refused, std::nullopt, 0, {}};
            }
            if (!take(*frame)) {
                break;
            }
        }
        m_answer.outcome = RasterOutcome::CutShort;
        return std::move(m_answer);
    }

private:
    std::optional<RasterFrame> nextFrame() const
    {
        std::array<char, kFrameBytes> bytes{};
        if (!m_read(bytes)) {
            return std::nullopt;
        }
        return std::bit_cast<RasterFrame>(bytes);
    }

    bool isPlausible(const RasterFrame& frame) const
    {
        const bool isPicture = m_request.kind == RasterRequest::Kind::Picture;
        const PixelSize size{frame.width, frame.height};
        switch (frame.kind) {
        case RasterFrame::Kind::PictureSize:
            return isPicture && !m_answer.pictureSize && isPositive(size);
        case RasterFrame::Kind::PageCount:
            return !isPicture && m_answer.pageCount == 0 && frame.count > 0;
        case RasterFrame::Kind::Raster:
        case RasterFrame::Kind::OpaqueRaster:
            return fitsLimit(size)
                && (isPicture ? isPlausiblePicture(size) : isPlausiblePage(size));
        case RasterFrame::Kind::End:
            break;
        }
        return false;
    }

    bool fitsLimit(const PixelSize& size) const
    {
        return isPositive(size) && size.width <= std::min(m_request.limit.width, kMostSide)
            && size.height <= std::min(m_request.limit.height, kMostSide)
            && byteCount(size) <= kMostRasterBytes - m_rasterBytes;
    }

    bool isPlausiblePicture(const PixelSize& size) const
    {
        return m_answer.pictureSize && m_answer.rasters.empty()
            && size.width <= m_answer.pictureSize->width
            && size.height <= m_answer.pictureSize->height;
    }

    bool isPlausiblePage(const PixelSize& size) const
    {
        const std::size_t most = std::min(kMostPages, static_cast<std::size_t>(m_answer.pageCount));
        return size.width == m_request.limit.width && m_answer.rasters.size() < most;
    }

    static std::size_t byteCount(const PixelSize& size)
    {
        return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)
            * kBytesPerPixel;
    }

    /// False when the bytes end too early.
    bool take(const RasterFrame& frame)
    {
        const PixelSize size{frame.width, frame.height};
        if (frame.kind == RasterFrame::Kind::PictureSize) {
            m_answer.pictureSize = size;
            return true;
        }
        if (frame.kind == RasterFrame::Kind::PageCount) {
            m_answer.pageCount = frame.count;
            return true;
        }
        Raster raster{size, frame.kind == RasterFrame::Kind::OpaqueRaster, {}};
        raster.pixels.resize(byteCount(size));
        if (!m_read(raster.pixels)) {
            return false;
        }
        m_rasterBytes += raster.pixels.size();
        m_answer.rasters.push_back(std::move(raster));
        return true;
    }

    const RasterRequest& m_request;
    const ReadBytes& m_read;
    RasterAnswer m_answer;
    std::size_t m_rasterBytes = 0;
};

} // namespace

RasterAnswer readRasterAnswer(const RasterRequest& request, const ReadBytes& read)
{
    return AnswerReader(request, read).answer();
}

} // namespace tessera
