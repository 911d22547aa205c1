// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QSize>

#include <cstdint>
#include <string>
#include <vector>

namespace tessera::test {

/// The bytes of an image of one colour in a format that Qt writes ("png", "jpg", "bmp").
std::string imageFile(const QSize& size, const char* format, const QColor& colour = Qt::red);

/// A PNG file whose header tells of that many pixels, with nearly no pixels behind it.
std::string pngOfClaimedSize(std::uint32_t width, std::uint32_t height);

/// An animation of two images of one pixel, the first red and the second blue.
std::string animatedGif();

/// A document of A4 pages with their numbers on them.
std::string pdfFile(int pages);

/// A document of objects that are numbered from 1; the first is the catalog.
std::string pdfOf(const std::vector<std::string>& objects);

/// An object with content; `entries` are its dictionary's others.
std::string pdfStream(const std::string& content, const std::string& entries = {});

} // namespace tessera::test
