// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QImageReader>
#include <QSize>

class QIODevice;

namespace tessera {

/// Reads an image, of an animation its first. The kind is told by the content. Of the formats only
/// those of plain pixels are read: a drawing may name other files.
class ImageDecoding {
public:
    /// The device must outlive it.
    explicit ImageDecoding(QIODevice& device);

    /// The image's own, upright; invalid when the bytes are no known image.
    QSize pixelSize() const { return m_pixelSize; }

    /// The image, no larger than `limit` allows. Null when it is broken or too large. To be called
    /// once.
    QImage read(const QSize& limit);

private:
    bool liesOnItsSide() const;

    QImageReader m_reader;
    QSize m_pixelSize;
};

} // namespace tessera
