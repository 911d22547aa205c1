// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/LinuxReadableFile.h"

#include <cerrno>
#include <utility>

namespace tessera {

LinuxReadableFile::LinuxReadableFile(FileDescriptor file)
    : m_file(std::move(file))
{
}

std::optional<std::size_t> LinuxReadableFile::readAt(std::uint64_t offset, std::span<char> into)
{
    ssize_t count = 0;
    do {
        count = ::pread(m_file.number(), into.data(), into.size(), static_cast<off_t>(offset));
    } while (count < 0 && errno == EINTR);
    return count < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(count));
}

} // namespace tessera
