// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// One line of the kernel's table of mounts.
struct Mount {
    std::uint64_t id = 0;
    std::uint64_t parent = 0; ///< the mount that it is mounted in
    std::string device; ///< numbers of the device, like "8:1"
    std::string root; ///< which of the file system's folders is mounted; absolute path as bytes
    std::string point; ///< absolute path as bytes
    std::string fileSystemType;
    std::string source; ///< what the file system says that it is on: a device's path, a share
    std::string options; ///< of the file system, for all its mounts alike but btrfs's "subvol"

    /// Whether it shows a folder or subvolume of its file system only.
    bool isPart() const { return root != "/"; }

    /// The device as stat(2) writes it; nothing when the numbers cannot be read.
    std::optional<std::uint64_t> deviceNumber() const;
};

/// What is mounted where, as the kernel tells it at one moment.
/// https://docs.kernel.org/filesystems/proc.html#proc-pid-mountinfo-information-about-mounts
class MountTable {
public:
    /// Of a text like /proc/self/mountinfo; lines that cannot be read are left out.
    explicit MountTable(std::string_view mountInfo);

    /// Of this process; nothing when the system does not tell. `path` is for tests.
    [[nodiscard]] static std::optional<MountTable> ofThisProcess(
        const char* path = "/proc/self/mountinfo");

    /// In the kernel's order, a mount after those that it may cover.
    const std::vector<Mount>& mounts() const { return m_mounts; }

    /// The mount that a path without links lies on: the one with the longest mount point above it,
    /// and of several at that point the last. With `id`, only the mount of that number: another
    /// may be covered by one mounted higher up later. Nothing when there is none.
    std::optional<Mount> mountOf(std::string_view path, std::optional<std::uint64_t> id) const;

    /// The mount of that number; nothing when it is none that this process sees.
    std::optional<Mount> withId(std::uint64_t id) const;

    /// Whether something is mounted at a place inside the folder.
    bool hasMountInside(std::string_view folder) const;

    /// The mounts at or inside a folder without links that cover a file or a folder of the very
    /// file system which the folder shows, by whichever of its mounts: what is below them takes
    /// space there and cannot be seen, neither there nor elsewhere in the folder. Each point once;
    /// none of a point that lies below another cover. None where the folder's mount is not known.
    std::vector<Mount> mountsThatCover(std::string_view folder) const;

private:
    bool coversSomethingOf(const Mount& mount, const Mount& shown) const;

    std::vector<Mount> m_mounts;
};

/// A field of that table as bytes: in it, space, tab, newline and backslash are each written as a
/// backslash and three octal digits.
[[nodiscard]] std::string unescapedMountField(std::string_view field);

/// Whether the path is the folder or lies somewhere inside it. Both without trailing slashes.
[[nodiscard]] bool isAtOrInside(std::string_view path, std::string_view folder);

} // namespace tessera
