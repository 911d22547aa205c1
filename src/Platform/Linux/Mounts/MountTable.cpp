// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/MountTable.h"

#include "Platform/Linux/Files/ReadToEnd.h"

#include <fcntl.h>
#include <sys/sysmacros.h>

#include <algorithm>
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

/// The whole text as a decimal number.
template <typename Number>
bool readNumber(std::string_view text, Number& number)
{
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size();
}

/// Of "36 35 98:0 /root /mount/point rw,noatime master:1 - ext3 /dev/root rw".
std::optional<Mount> mountFrom(std::string_view line)
{
    const std::string_view id = takeUntil(line, ' ');
    const std::string_view parent = takeUntil(line, ' ');
    Mount mount;
    const bool isWhole = readNumber(id, mount.id) && readNumber(parent, mount.parent);
    mount.device = takeUntil(line, ' ');
    mount.root = unescapedMountField(takeUntil(line, ' '));
    mount.point = unescapedMountField(takeUntil(line, ' '));
    // Options follow, and fields whose number differs; a lone hyphen ends them.
    while (!line.empty() && takeUntil(line, ' ') != "-") { }
    mount.fileSystemType = takeUntil(line, ' ');
    mount.source = unescapedMountField(takeUntil(line, ' '));
    mount.options = unescapedMountField(takeUntil(line, ' '));
    return isWhole && mount.point.starts_with('/') ? std::optional(std::move(mount)) : std::nullopt;
}

/// What lies below one folder as it is below another.
std::string movedPath(std::string_view path, std::string_view from, std::string_view to)
{
    std::string_view rest = path.substr(std::min(from == "/" ? 0 : from.size(), path.size()));
    rest.remove_prefix(std::min(rest.find_first_not_of('/'), rest.size()));
    std::string moved(to);
    if (!rest.empty()) {
        moved.append(moved.ends_with('/') ? "" : "/").append(rest);
    }
    return moved;
}

} // namespace

std::optional<std::uint64_t> Mount::deviceNumber() const
{
    std::string_view text = device;
    unsigned majorNumber = 0;
    unsigned minorNumber = 0;
    const bool isWhole
        = readNumber(takeUntil(text, ':'), majorNumber) && readNumber(text, minorNumber);
    return isWhole ? std::optional<std::uint64_t>(makedev(majorNumber, minorNumber)) : std::nullopt;
}

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
    // A table that broke off would say that nothing is mounted where something is.
    const auto text = readToEnd(FileDescriptor(::open(path, O_RDONLY | O_CLOEXEC)));
    return text ? std::optional(MountTable(*text)) : std::nullopt;
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

std::vector<Mount> MountTable::mountsThatCover(std::string_view folder) const
{
    const std::optional<Mount> shown = mountOf(folder, {});
    std::vector<Mount> covering;
    for (const Mount& mount : m_mounts) {
        const bool isAtNewPoint
            = std::ranges::find(covering, mount.point, &Mount::point) == covering.end();
        if (shown && isAtNewPoint && isAtOrInside(mount.point, folder)
            && coversSomethingOf(mount, *shown)) {
            covering.push_back(mount);
        }
    }
    return covering;
}

/// Of the same file system, and of what can be seen nowhere in the mount that is shown.
bool MountTable::coversSomethingOf(const Mount& mount, const Mount& shown) const
{
    const std::optional<Mount> around = withId(mount.parent);
    if (!around || around->id == mount.id || around->device != shown.device) {
        return false;
    }
    const auto isAround = [&mount](const Mount& other) {
        return other.parent == mount.parent && other.id != mount.id && other.point != mount.point
            && isAtOrInside(mount.point, other.point);
    };
    if (std::ranges::any_of(m_mounts, isAround)) {
        return false;
    }
    // What lies in the shown part as well is seen there, or told as covered there.
    return around->id == shown.id
        || !isAtOrInside(movedPath(mount.point, around->point, around->root), shown.root);
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
