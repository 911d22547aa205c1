// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/ImageDecoding.h"

#include <QByteArray>
#include <QImageIOHandler>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace tessera {

namespace {

/// More pixels take seconds to decode, whatever remains of them.
constexpr std::int64_t kMostPixels = std::int64_t{256} * 1024 * 1024;
/// Qt's own limit refuses the larger ones of today's cameras.
constexpr int kMostMegabytes = 512;

bool isPlainPixels(const QByteArray& format)
{
    static constexpr std::array<std::string_view, 21> kFormats{
        "avif", "bmp", "cur", "gif", "heic", "heif", "icns", "ico", "jp2",  "jpeg", "jpg",
        "jxl",  "pbm", "pgm", "png", "pnm",  "ppm",  "qoi",  "tif", "tiff", "webp"};
    const std::string_view name(format.constData(), static_cast<std::size_t>(format.size()));
    return std::ranges::find(kFormats, name) != kFormats.end();
}

/// An icon file holds the same picture in several sizes.
void goToLargestImage(QImageReader& reader)
{
    constexpr int kMostImages = 64;
    const QByteArray format = reader.format();
    if (format != "ico" && format != "icns") {
        return;
    }
    int largest = 0;
    int largestWidth = reader.size().width();
    for (int i = 1; i < std::min(reader.imageCount(), kMostImages); ++i) {
        if (reader.jumpToImage(i) && reader.size().width() > largestWidth) {
            largest = i;
            largestWidth = reader.size().width();
        }
    }
    (void)reader.jumpToImage(largest);
}

/// How many pixels to ask for of an image of `size`; it is never enlarged.
QSize shownSize(const QSize& size, const QSize& limit)
{
    if (size.width() <= limit.width() && size.height() <= limit.height()) {
        return size;
    }
    return size.scaled(limit, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

} // namespace

ImageDecoding::ImageDecoding(QIODevice& device)
    : m_reader(&device)
{
    QImageReader::setAllocationLimit(kMostMegabytes);
    m_reader.setDecideFormatFromContent(true);
    m_reader.setAutoTransform(true);
    if (!isPlainPixels(m_reader.format())) {
        return;
    }
    goToLargestImage(m_reader);
    const QSize stored = m_reader.size();
    if (stored.isValid() && !stored.isEmpty()) {
        m_pixelSize = liesOnItsSide() ? stored.transposed() : stored;
    }
}

QImage ImageDecoding::read(const QSize& limit)
{
    if (std::int64_t{m_pixelSize.width()} * m_pixelSize.height() > kMostPixels) {
        return {};
    }
    const QSize wanted = shownSize(m_pixelSize, limit);
    if (wanted != m_pixelSize) {
        // The size asked for is that before the turn.
        m_reader.setScaledSize(liesOnItsSide() ? wanted.transposed() : wanted);
    }
    return m_reader.read();
}

bool ImageDecoding::liesOnItsSide() const
{
    return m_reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

} // namespace tessera
