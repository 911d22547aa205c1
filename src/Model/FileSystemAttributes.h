// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

/// What a whole file system says of its space, each size in bytes and no larger than
/// kMaxAllocation. totalBytes - freeBytes is what is used. Of what is free, a part may be for the
/// administrator alone: the file system then is full for the user while some of it is free.
/// https://man7.org/linux/man-pages/man3/statvfs.3.html
struct FileSystemSizes {
    std::uint64_t totalBytes = 0; ///< f_blocks x f_frsize
    std::uint64_t freeBytes = 0; ///< f_bfree x f_frsize: for the administrator
    std::uint64_t availableBytes = 0; ///< f_bavail x f_frsize: for the user who asks
    /// (f_bfree - f_bavail) x f_frsize: the administrator's alone, or, as on btrfs, held back by
    /// the file system for its own records. None where more is available than is free.
    std::uint64_t reservedBytes = 0;
    std::uint64_t blockBytes = 0; ///< f_frsize: the unit that space is counted in
    std::string type = {}; ///< "ext4", as the system calls it; empty where it does not tell
    /// The number by which the system's table of mounts knows the file system with all its
    /// subvolumes; files may have another. 0 where nobody tells.
    std::uint64_t device = 0;
};

/// Asks a file system for its sizes. Callable from any thread.
class FileSystemAttributes {
public:
    FileSystemAttributes() = default;
    FileSystemAttributes(const FileSystemAttributes&) = delete;
    FileSystemAttributes& operator=(const FileSystemAttributes&) = delete;
    virtual ~FileSystemAttributes() = default;

    /// Sizes of the file system that holds `path` (bytes); nothing when it gives no answer, which
    /// includes a dead network mount: the call returns in bounded time.
    [[nodiscard]] virtual std::optional<FileSystemSizes> attributesOfFileSystem(
        const std::string& path) const = 0;
};

} // namespace tessera
