// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

class QIODevice;

namespace tessera {

/// What became of an attempt to read an image.
struct DecodedImage {
    QSize pixelSize; ///< the image's own, upright; invalid when the bytes are no known image
    QImage image; ///< null when the image is broken or too large
};

/// Reads the image, of an animation its first, no larger than `limit` allows. The kind is told by
/// the content. Of the formats only those of plain pixels are read: a drawing may name other files.
/// For workers; it takes as long as it takes, but neither memory nor time without bounds.
DecodedImage decodedImage(QIODevice& device, const QSize& limit);

} // namespace tessera
