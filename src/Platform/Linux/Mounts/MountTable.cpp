// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/MountTable.h"

#include "Platform/Linux/Files/FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>

namespace tessera {

namespace {

std::string_view takeUntil(std::string_view& text, char separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

/// Of "36 35 98:0 /root /mount/point rw,noatime master:1 - ext3 /dev/root rw".
std::optional<Mount> mountFrom(std::string_view line)
{
    const std::string_view id = takeUntil(line, ' ');
    takeUntil(line, ' '); // the mount that it is mounted in
    Mount mount;
    const auto read = std::from_chars(id.data(), id.data() + id.size(), mount.id);
    mount.device = takeUntil(line, ' ');
    mount.root = unescapedMountField(takeUntil(line, ' '));
    mount.point = unescapedMountField(takeUntil(line, ' '));
    // Options follow, and fields whose number differs; a lone hyphen ends them.
    while (!line.empty() && takeUntil(line, ' ') != "-") { }
    mount.fileSystemType = takeUntil(line, ' ');
    mount.source = unescapedMountField(takeUntil(line, ' '));
    mount.options = unescapedMountField(takeUntil(line, ' '));
    const bool isWhole = read.ec == std::errc() && read.ptr == id.data() + id.size();
    return isWhole && mount.point.starts_with('/') ? std::optional(std::move(mount)) : std::nullopt;
}

} // namespace

MountTable::MountTable(std::string_view mountInfo)
{
    while (!mountInfo.empty()) {
        if (std::optional<Mount> mount = mountFrom(takeUntil(mountInfo, '\n'))) {
            m_mounts.push_back(std::move(*mount));
        }
    }
}

std::optional<MountTable> MountTable::ofThisProcess(const char* path)
{
    const FileDescriptor file(::open(path, O_RDONLY | O_CLOEXEC));
    std::string text;
    std::array<char, 4096> piece{};
    ssize_t count = 0;
    do {
        count = ::read(file.number(), piece.data(), piece.size());
        text.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    } while (count > 0 || (count < 0 && errno == EINTR));
    // A table that broke off would say that nothing is mounted where something is.
    return count == 0 ? std::optional(MountTable(text)) : std::nullopt;
}

std::optional<Mount> MountTable::mountOf(
    std::string_view path, std::optional<std::uint64_t> id) const
{
    const Mount* longest = nullptr;
    for (const Mount& mount : m_mounts) {
        const bool isCandidate = (!id || *id == mount.id) && isAtOrInside(path, mount.point);
        if (isCandidate && (longest == nullptr || mount.point.size() >= longest->point.size())) {
            longest = &mount;
        }
    }
    return longest != nullptr ? std::optional(*longest) : std::nullopt;
}

std::optional<Mount> MountTable::withId(std::uint64_t id) const
{
    const auto found = std::find_if(
        m_mounts.begin(), m_mounts.end(), [id](const Mount& mount) { return mount.id == id; });
    return found != m_mounts.end() ? std::optional(*found) : std::nullopt;
}

bool MountTable::hasMountInside(std::string_view folder) const
{
    return std::any_of(m_mounts.begin(), m_mounts.end(), [folder](const Mount& mount) {
        return mount.point != folder && isAtOrInside(mount.point, folder);
    });
}

std::string unescapedMountField(std::string_view field)
{
    constexpr std::size_t kDigits = 3;
    constexpr int kOctal = 8;
    std::string bytes;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const std::string_view digits = field.substr(i + 1, kDigits);
        if (field[i] != '\\' || digits.size() != kDigits
            || !std::all_of(digits.begin(), digits.end(), isOctal)) {
            bytes += field[i];
            continue;
        }
        unsigned value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value, kOctal);
        bytes += static_cast<char>(value);
        i += kDigits;
    }
    return bytes;
}

bool isAtOrInside(std::string_view path, std::string_view folder)
{
    if (folder == "/") {
        return path.starts_with('/');
    }
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

} // namespace tessera
