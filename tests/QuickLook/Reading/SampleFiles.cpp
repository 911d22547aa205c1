// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/SampleFiles.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <array>
#include <initializer_list>
#include <string_view>
#include <vector>

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
    std::string kids;
    std::vector<std::string> objects(2);
    for (int page = 1; page <= pages; ++page) {
        const std::size_t number = objects.size() + 1;
        kids += std::to_string(number) + " 0 R ";
        objects.push_back(
            "<</Type/Page/Parent 2 0 R/MediaBox[0 0 595.276 841.89]/Contents "
            + std::to_string(number + 1)
            + " 0 R/Resources<</Font<</F<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>>>>>>>");
        objects.push_back(pdfStream("BT /F 40 Tf 100 700 Td (" + std::to_string(page) + ") Tj ET"));
    }
    objects[0] = "<</Type/Catalog/Pages 2 0 R>>";
    objects[1] = "<</Type/Pages/Kids[" + kids + "]/Count " + std::to_string(pages) + ">>";
    return pdfOf(objects);
}

std::string pdfOf(const std::vector<std::string>& objects)
{
    std::string bytes = "%PDF-1.4\n";
    std::string table = "0000000000 65535 f \n";
    std::size_t number = 0;
    for (const std::string& object : objects) {
        const std::string offset = std::to_string(bytes.size());
        table += std::string(10 - offset.size(), '0') + offset + " 00000 n \n";
        bytes += std::to_string(++number) + " 0 obj\n" + object + "\nendobj\n";
    }
    const std::string count = std::to_string(objects.size() + 1);
    return bytes + "xref\n0 " + count + "\n" + table + "trailer\n<</Size " + count
        + "/Root 1 0 R>>\nstartxref\n" + std::to_string(bytes.size()) + "\n%%EOF\n";
}

std::string pdfStream(const std::string& content, const std::string& entries)
{
    return "<<" + entries + "/Length " + std::to_string(content.size()) + ">>\nstream\n" + content
        + "\nendstream";
}

} // namespace tessera::test
