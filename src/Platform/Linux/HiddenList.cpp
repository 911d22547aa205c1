// SPDX-License-Identifier: MIT
#include "Platform/Linux/HiddenList.h"

#include "Platform/Linux/FileStatus.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace tessera {

namespace {

/// Sorting the lines of the longest list costs about as much as searching it so many times.
constexpr std::size_t kFewLookups = 32;

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

HiddenList::HiddenList(int directory, std::size_t lookups)
{
    const FileDescriptor file = openRegularFile(directory, kFileName.data());
    if (!file.isOpen()) {
        return;
    }
    m_text = '\n' + readUpTo(file.number(), kMaxBytes) + '\n';
    if (lookups > kFewLookups) {
        sortLines();
    }
}

void HiddenList::sortLines()
{
    std::string_view rest = m_text;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        m_names.push_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    std::sort(m_names.begin(), m_names.end());
}

bool HiddenList::contains(std::string_view name) const
{
    return m_names.empty() ? isLine(name)
                           : std::binary_search(m_names.begin(), m_names.end(), name);
}

/// Searches the text as a whole, which memmem(3) does in a time that grows with its length alone,
/// whatever stands in it.
bool HiddenList::isLine(std::string_view name) const
{
    if (name.find('\n') != std::string_view::npos) {
        return false; // though two lines may look like it
    }
    const std::string line = '\n' + std::string(name) + '\n';
    return ::memmem(m_text.data(), m_text.size(), line.data(), line.size()) != nullptr;
}

} // namespace tessera
