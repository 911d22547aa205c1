// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

/// A place where something covers a file or a folder, and what covers it. Pseudo file systems have
/// their places on every disk; one of the same device shows another part of the disk.
struct CoveredFolder {
    std::string path; ///< absolute, as bytes
    std::string type; ///< "tmpfs", as the system calls the file system that covers it
    std::uint64_t device = 0; ///< of that file system, as FileSystemSizes::device

    bool operator==(const CoveredFolder& other) const = default;
};

/// What of a file system cannot be seen because something is mounted over it. Callable from any
/// thread.
class CoveredFolders {
public:
    CoveredFolders() = default;
    CoveredFolders(const CoveredFolders&) = delete;
    CoveredFolders& operator=(const CoveredFolders&) = delete;
    virtual ~CoveredFolders() = default;

    /// The places, in the system's order, at or inside a folder where something covers a file or a
    /// folder of the folder's own file system that cannot be seen elsewhere in the folder. Whether
    /// anything lies below, and how large it is, nobody can tell. The folder is an absolute path
    /// without links and without slashes at its end. Touches no file system. Nothing when the
    /// system does not say what is mounted.
    [[nodiscard]] virtual std::optional<std::vector<CoveredFolder>> coveredInside(
        const std::string& folder) const = 0;
};

} // namespace tessera
