// SPDX-License-Identifier: MIT
#include "Base/FileIdentity.h"

#include <charconv>
#include <random>
#include <system_error>

namespace tessera {

namespace {

std::uint64_t randomBits()
{
    constexpr unsigned kHalf = 32;
    std::random_device source;
    return (std::uint64_t{source()} << kHalf) | source();
}

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

/// The last step of SplitMix64, which spreads every bit over all. Where it begins is a secret: who
/// makes a disk chooses its inodes, and could have all of them collide.
std::size_t FileIdentityHash::operator()(const FileIdentity& file) const
{
    static const std::uint64_t secret = randomBits();
    std::uint64_t bits = secret + file.inode + file.device * 0x9e3779b97f4a7c15;
    bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9;
    bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111eb;
    return static_cast<std::size_t>(bits ^ (bits >> 31U));
}

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
