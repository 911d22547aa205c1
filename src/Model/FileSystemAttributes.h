// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

/// Sizes of a whole file system, in bytes. totalBytes - freeBytes is what is used.
struct FileSystemSizes {
    std::uint64_t totalBytes = 0;
    std::uint64_t freeBytes = 0;
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
