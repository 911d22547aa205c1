// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QSize>

#include <cstdint>
#include <string>

namespace tessera::test {

/// The bytes of an image of one colour in a format that Qt writes ("png", "jpg", "bmp").
std::string imageFile(const QSize& size, const char* format, const QColor& colour = Qt::red);

/// A PNG file whose header tells of that many pixels, with nearly no pixels behind it.
std::string pngOfClaimedSize(std::uint32_t width, std::uint32_t height);

/// An animation of two images of one pixel, the first red and the second blue.
std::string animatedGif();

/// A document of blank A4 pages.
std::string pdfFile(int pages);

} // namespace tessera::test
