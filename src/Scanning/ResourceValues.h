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

    /// Whether `path` (bytes) is the root of a mounted file system; false when it cannot be read.
    [[nodiscard]] virtual bool isVolume(const std::string& path) const = 0;

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
