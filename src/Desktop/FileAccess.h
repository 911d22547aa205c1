// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace tessera {

/// What the program does with single files and folders that the user names. Paths are bytes.
class FileAccess {
public:
    FileAccess() = default;
    FileAccess(const FileAccess&) = delete;
    FileAccess& operator=(const FileAccess&) = delete;
    virtual ~FileAccess() = default;

    /// Why the folder cannot be read; no error when it can. `timed_out` says nothing about it but
    /// that its file system is slow or dead.
    [[nodiscard]] virtual std::error_code checkFolder(const std::string& path) const = 0;

    /// The same of an absolute path of which no part may be a link, the folder itself neither.
    [[nodiscard]] virtual std::error_code checkFolderWithoutLinks(
        const std::string& path) const = 0;

    /// The path from the root, with symbolic links resolved as far as that works.
    [[nodiscard]] virtual std::string absolutePath(const std::string& path) const = 0;

    /// Makes the bytes the content of what the path leads to. A regular file keeps its rights, and
    /// with an error its content as well where it can be replaced as a whole; a pipe or a device
    /// gets the bytes written to it.
    [[nodiscard]] virtual std::error_code writeFile(
        const std::string& path, std::string_view bytes) const = 0;
};

} // namespace tessera
