// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/AnswerWriter.h"

#include <QImage>
#include <QSize>

#include <array>
#include <bit>
#include <utility>

namespace tessera {

AnswerWriter::AnswerWriter(WriteBytes write)
    : m_write(std::move(write))
{
}

bool AnswerWriter::writePictureSize(const QSize& size)
{
    return write({RasterFrame::Kind::PictureSize, size.width(), size.height(), 0});
}

bool AnswerWriter::writePageCount(int count)
{
    return write({RasterFrame::Kind::PageCount, 0, 0, count});
}

bool AnswerWriter::writeRaster(const QImage& image)
{
    const bool isOpaque = !image.hasAlphaChannel();
    const QImage raster = image.convertToFormat(
        isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    // Lines of four bytes a pixel have no gaps between them.
    const auto bytes = static_cast<std::size_t>(raster.sizeInBytes());
    if (raster.isNull() || bytes > kMostRasterBytes - m_rasterBytes) {
        return true;
    }
    m_rasterBytes += bytes;
    const auto kind = isOpaque ? RasterFrame::Kind::OpaqueRaster : RasterFrame::Kind::Raster;
    const auto* const pixels = static_cast<const void*>(raster.constBits());
    return write({kind, raster.width(), raster.height(), 0})
        && m_write({static_cast<const char*>(pixels), bytes});
}

bool AnswerWriter::writeEnd()
{
    return write({RasterFrame::Kind::End, 0, 0, 0});
}

bool AnswerWriter::write(const RasterFrame& frame) const
{
    const auto bytes = std::bit_cast<std::array<char, sizeof(RasterFrame)>>(frame);
    return m_write(bytes);
}

} // namespace tessera
