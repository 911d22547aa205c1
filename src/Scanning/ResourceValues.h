// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

/// What the file system says of a single path. A value that cannot be read is missing.
/// Callable from any thread.
class ResourceValues {
public:
    ResourceValues() = default;
    ResourceValues(const ResourceValues&) = delete;
    ResourceValues& operator=(const ResourceValues&) = delete;
    virtual ~ResourceValues() = default;

    /// Whether `path` (bytes) is a directory where a whole file system is mounted. Where only a
    /// part of one is, a folder or a subvolume, its free and used space are not that place's own.
    /// False when it cannot be read.
    [[nodiscard]] virtual bool isVolume(const std::string& path) const = 0;

    /// Whether `path` is a directory where something is mounted, be it whole or a part. Known of a
    /// file system that does not answer, too; false when nothing is there.
    [[nodiscard]] virtual bool isMountPoint(const std::string& path) const = 0;

    /// Whether the two paths lead to one directory, over whatever links; false when either cannot
    /// be read.
    [[nodiscard]] virtual bool isSameDirectory(
        const std::string& path, const std::string& other) const = 0;

    /// Whether `path` is a directory, or a symbolic link to one; false when it cannot be read.
    [[nodiscard]] virtual bool isDirectory(const std::string& path) const = 0;

    /// Bytes on disk of the item itself; a symbolic link is not followed.
    [[nodiscard]] virtual std::optional<std::uint64_t> allocatedSize(
        const std::string& path) const = 0;

    /// When the content last changed, in seconds since 1970-01-01 00:00 UTC.
    [[nodiscard]] virtual std::optional<std::int64_t> contentModificationDate(
        const std::string& path) const = 0;
};

} // namespace tessera
