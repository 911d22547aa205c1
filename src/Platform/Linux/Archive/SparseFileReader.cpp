// SPDX-License-Identifier: MIT
#include "Platform/Linux/Archive/SparseFileReader.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tessera {

SparseFileReader::SparseFileReader(FileDescriptor file, std::uint64_t length)
    : m_file(std::move(file))
    , m_length(length)
{
}

ContentPart SparseFileReader::read(std::span<char> buffer)
{
    if (m_position >= m_dataEnd && m_position < m_length) {
        if (const int error = findData(); error != 0) {
            return failed(error);
        }
    }
    if (m_position >= m_length) {
        return {};
    }
    if (m_position >= m_dataBegin) {
        return readData(buffer.first(std::min(buffer.size(), m_dataEnd - m_position)));
    }
    const std::uint64_t holeEnd = std::min(m_dataBegin, m_length);
    const std::span<char> zeros = buffer.first(std::min(buffer.size(), holeEnd - m_position));
    std::fill(zeros.begin(), zeros.end(), '\0');
    m_position += zeros.size();
    return {zeros.size(), 0};
}

/// Finds the next stretch of data; the errno when not even the end can be found.
int SparseFileReader::findData()
{
    const auto position = static_cast<off_t>(m_position);
    const off_t begin = ::lseek(m_file.number(), position, SEEK_DATA);
    if (begin < 0 && errno == ENXIO) {
        // No data from here on: a hole to the end of the file, which may have come nearer.
        const off_t end = ::lseek(m_file.number(), 0, SEEK_END);
        if (end < 0) {
            return errno;
        }
        m_length = std::min(m_length, static_cast<std::uint64_t>(end));
        m_dataBegin = m_dataEnd = m_length;
        return 0;
    }
    // Where the file system cannot tell, all of it may be data.
    m_dataBegin = begin < 0 ? m_position : static_cast<std::uint64_t>(begin);
    const off_t end = begin < 0 ? begin : ::lseek(m_file.number(), begin, SEEK_HOLE);
    m_dataEnd = end <= begin ? m_length : std::min(m_length, static_cast<std::uint64_t>(end));
    return 0;
}

ContentPart SparseFileReader::failed(int error)
{
    m_length = m_position;
    return {0, error};
}

ContentPart SparseFileReader::readData(std::span<char> buffer)
{
    ssize_t count = 0;
    do {
        count = ::pread(
            m_file.number(), buffer.data(), buffer.size(), static_cast<off_t>(m_position));
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        return failed(errno);
    }
    if (count == 0) {
        m_length = m_position;
    }
    m_position += static_cast<std::uint64_t>(count);
    return {static_cast<std::size_t>(count), 0};
}

} // namespace tessera
