// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/FileDevice.h"

#include "QuickLook/Reading/FileReader.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <span>

namespace tessera {

namespace {

constexpr qsizetype kPieceBytes = qsizetype{128} * 1024;

qint64 signedLength(std::uint64_t length)
{
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
    return static_cast<qint64>(std::min(length, kMost));
}

} // namespace

FileDevice::FileDevice(ReadableFile& file, std::uint64_t length)
    : m_file(file)
    , m_length(signedLength(length))
{
    // The base's own buffer would move the position on its own.
    (void)open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool FileDevice::seek(qint64 position)
{
    if (position < 0 || position > m_length || !QIODevice::seek(position)) {
        return false;
    }
    m_position = position;
    return true;
}

qint64 FileDevice::readData(char* into, qint64 maxSize)
{
    // Decoders take a read that brings less than asked for as the end of the file.
    qint64 filled = 0;
    while (filled < maxSize && m_position < m_length) {
        const qint64 count = readFromPiece(into + filled, maxSize - filled);
        if (count < 0) {
            return -1;
        }
        if (count == 0) {
            break;
        }
        filled += count;
    }
    return filled;
}

qint64 FileDevice::readFromPiece(char* into, qint64 maxSize)
{
    const bool isInPiece = m_position >= m_pieceStart && m_position < m_pieceStart + m_piece.size();
    if (!isInPiece && !fillPiece()) {
        return -1;
    }
    const qint64 offset = m_position - m_pieceStart;
    const qint64 count = std::min({maxSize, m_piece.size() - offset, m_length - m_position});
    std::memcpy(into, m_piece.constData() + offset, static_cast<std::size_t>(count));
    m_position += count;
    return count;
}

qint64 FileDevice::writeData(const char* /*from*/, qint64 /*size*/)
{
    return -1;
}

bool FileDevice::fillPiece()
{
    m_piece.resize(kPieceBytes);
    m_pieceStart = m_position;
    const auto count = m_file.readAt(
        static_cast<std::uint64_t>(m_position),
        std::span(m_piece.data(), static_cast<std::size_t>(kPieceBytes)));
    m_piece.resize(count ? static_cast<qsizetype>(*count) : 0);
    return count.has_value();
}

} // namespace tessera
