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
    std::string point; ///< absolute path as bytes
};

/// What is mounted where, as the kernel tells it at one moment.
/// https://docs.kernel.org/filesystems/proc.html#proc-pid-mountinfo-information-about-mounts
class MountTable {
public:
    /// Of a text like /proc/self/mountinfo; lines that cannot be read are left out.
    explicit MountTable(std::string_view mountInfo);

    /// Of this process; empty when the system does not tell.
    static MountTable ofThisProcess();

    /// The mount that a path without links lies on: the one with the longest mount point above it,
    /// and of several at that point the last. With `id`, only the mount of that number: another
    /// may be covered by one mounted higher up later. Nothing when there is none.
    std::optional<Mount> mountOf(std::string_view path, std::optional<std::uint64_t> id) const;

    /// Whether something is mounted at a place inside the folder.
    bool hasMountInside(std::string_view folder) const;

private:
    std::vector<Mount> m_mounts;
};

/// Whether the path is the folder or lies somewhere inside it. Both without trailing slashes.
[[nodiscard]] bool isAtOrInside(std::string_view path, std::string_view folder);

} // namespace tessera
