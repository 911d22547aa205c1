// SPDX-License-Identifier: MIT
#include "Base/FileIdentity.h"

#include <charconv>
#include <system_error>

namespace tessera {

namespace {

/// Takes a number and the byte behind it off the text; false when it does not begin so.
bool takeNumber(std::string_view& text, char behind, std::uint64_t& number)
{
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest == end || *rest != behind) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()) + 1);
    return true;
}

} // namespace

std::string fileIdentityLine(const FileIdentity& identity)
{
    return std::to_string(identity.device) + ' ' + std::to_string(identity.inode) + '\n';
}

std::optional<FileIdentity> readFileIdentityLine(std::string_view line)
{
    FileIdentity identity;
    const bool isRead = takeNumber(line, ' ', identity.device)
        && takeNumber(line, '\n', identity.inode) && line.empty();
    return isRead ? std::optional(identity) : std::nullopt;
}

} // namespace tessera
