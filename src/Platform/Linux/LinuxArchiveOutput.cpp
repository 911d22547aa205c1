// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxArchiveOutput.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

namespace tessera {

LinuxArchiveOutput::LinuxArchiveOutput(FileDescriptor file)
    : m_file(std::move(file))
{
}

int LinuxArchiveOutput::write(std::span<const char> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(m_file.number(), bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(count < 0 ? 0 : count));
    }
    return 0;
}

int LinuxArchiveOutput::close()
{
    // File systems that write late report at any closing what went wrong, and the file's own
    // descriptor has no way to say so.
    const int copy = ::dup(m_file.number());
    return copy >= 0 && ::close(copy) == 0 ? 0 : errno;
}

} // namespace tessera
