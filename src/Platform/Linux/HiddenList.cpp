// SPDX-License-Identifier: MIT
#include "Platform/Linux/HiddenList.h"

#include "Platform/Linux/FileStatus.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>

namespace tessera {

namespace {

FileDescriptor openRegularFile(int directory, const char* name)
{
    // Should a FIFO or a device have taken the name meanwhile, opening it neither waits nor makes
    // it the terminal.
    FileDescriptor file(
        ::openat(directory, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) {
        return {};
    }
    const StatusResult found = statusOf(file.number());
    return found && found.status.isRegular ? std::move(file) : FileDescriptor();
}

std::string readUpTo(int file, std::size_t maxBytes)
{
    std::string text(maxBytes, '\0');
    std::size_t length = 0;
    while (length < text.size()) {
        const ssize_t count = ::read(file, text.data() + length, text.size() - length);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            break;
        }
        length += static_cast<std::size_t>(count);
    }
    text.resize(length);
    text.shrink_to_fit();
    return text;
}

} // namespace

HiddenList::HiddenList(int directory)
{
    const FileDescriptor file = openRegularFile(directory, kFileName.data());
    if (!file.isOpen()) {
        return;
    }
    m_text = readUpTo(file.number(), kMaxBytes);
    std::string_view rest = m_text;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        m_names.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    std::sort(m_names.begin(), m_names.end());
}

bool HiddenList::contains(std::string_view name) const
{
    return std::binary_search(m_names.begin(), m_names.end(), name);
}

} // namespace tessera
