// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/HiddenList.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Walk/DirectoryListing.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace tessera {

namespace {

/// Searching the longest list so many times costs about as much as looking at each of its lines.
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

HiddenList::HiddenList(int directory, const DirectoryListing& listing)
{
    const FileDescriptor file = openRegularFile(directory, kFileName.data());
    if (!file.isOpen()) {
        return;
    }
    m_text = '\n' + readUpTo(file.number(), kMaxBytes) + '\n';
    if (listing.size() > kFewLookups) {
        collectNames(listing);
    }
}

void HiddenList::collectNames(const DirectoryListing& listing)
{
    // What is fewer is kept to be compared with: a long list in each of many small folders costs
    // a look at its lines, and a short one in a folder of a million items none at the items here.
    const auto lines = static_cast<std::size_t>(std::count(m_text.begin(), m_text.end(), '\n'));
    const bool areNamesFewer = listing.size() < lines;
    std::unordered_set<std::string_view> items;
    for (std::size_t i = 0; areNamesFewer && i < listing.size(); ++i) {
        items.insert(listing.name(listing[i]));
    }
    m_names.emplace();
    for (std::string_view rest = m_text; !rest.empty();) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        if (!areNamesFewer || items.contains(line)) {
            m_names->insert(line);
        }
        rest.remove_prefix(line.size() + 1);
    }
}

bool HiddenList::contains(std::string_view name) const
{
    return m_names ? m_names->contains(name) : isLine(name);
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
