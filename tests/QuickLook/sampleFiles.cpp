// SPDX-License-Identifier: MIT
#include "QuickLook/sampleFiles.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <array>
#include <initializer_list>
#include <string_view>

namespace tessera::test {

namespace {

constexpr unsigned kBitsPerByte = 8;

std::string bigEndian(std::uint32_t number)
{
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>(number >> shift);
    }
    return bytes;
}

/// The checksum of PNG's chunks: see the PNG specification, annex D.
std::uint32_t crc32(std::string_view bytes)
{
    constexpr std::uint32_t kPolynomial = 0xEDB88320;
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (unsigned bit = 0; bit < kBitsPerByte; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? kPolynomial : 0);
        }
    }
    return ~crc;
}

std::string pngChunk(const std::string& type, const std::string& data)
{
    return bigEndian(static_cast<std::uint32_t>(data.size())) + type + data
        + bigEndian(crc32(type + data));
}

} // namespace

std::string imageFile(const QSize& size, const char* format, const QColor& colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.save(&bytes, format);
    return bytes.data().toStdString();
}

std::string pngOfClaimedSize(std::uint32_t width, std::uint32_t height)
{
    // One bit a pixel, grey; the compressed data is one empty stream.
    const std::string header
        = bigEndian(width) + bigEndian(height) + std::string("\x01\x00\x00\x00\x00", 5);
    const QByteArray stream = qCompress(QByteArray("\0", 1)).mid(4);
    return std::string("\x89PNG\r\n\x1A\n", 8) + pngChunk("IHDR", header)
        + pngChunk("IDAT", stream.toStdString()) + pngChunk("IEND", {});
}

std::string animatedGif()
{
    const auto frame = [](char colour) {
        return std::string(
                   "\x21\xF9\x04\x00\x0A\x00\x00\x00\x2C\x00\x00\x00\x00\x01\x00\x01\x00"
                   "\x00\x02\x02",
                   20)
            + (colour == 0 ? std::string("\x44\x01", 2) : std::string("\x4C\x01", 2))
            + std::string(1, '\0');
    };
    return std::string("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\x00\x00\x00\x00\xFF", 19) + frame(0)
        + frame(1) + ';';
}

std::string pdfFile(int pages)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        painter.drawText(1000, 1000, QString::number(page));
        if (page < pages) {
            writer.newPage();
        }
    }
    painter.end();
    return bytes.data().toStdString();
}

} // namespace tessera::test
