// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <system_error>
#include <vector>

namespace tessera {

class TopFolder;

/// The folders of a scanned file system whose content the scan has not seen. It knows no nodes, so
/// that it may be kept while the tree changes.
struct UnseenFolders {
    /// One that could not be listed, or not to its end.
    struct Unreadable {
        std::string path; ///< absolute, as bytes
        std::error_code reason; ///< of the system category

        bool operator==(const Unreadable& other) const = default;
    };

    std::vector<Unreadable> unreadable; ///< those that are known by name (ScanFindings)
    std::size_t unreadableCount = 0; ///< all of them
    std::size_t leftOutCount = 0; ///< that the walk passed by on purpose

    bool operator==(const UnseenFolders& other) const = default;
};

/// What is mounted in the tree is of another file system, where what is in such folders is looked
/// for; they do not count here, nor do they in foundSpace().
[[nodiscard]] UnseenFolders unseenFolders(const TopFolder& root);

} // namespace tessera
