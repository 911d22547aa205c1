// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessera {

class Folder;
class TopFolder;

/// What a scan found on its file system, each in bytes of blocks (st_blocks x 512). Together they
/// are what `du -sx` tells of the same folder, less the folders that were left out, with their own
/// blocks. Two things differ because a scan stays on the mount, where du goes by the device number:
/// what the same file system has mounted below a second time is not counted again, and a btrfs
/// subvolume, which has a number of its own, is counted with the rest.
struct FoundSpace {
    std::uint64_t files = 0; ///< whatever is no folder, each once whatever names it has
    std::uint64_t folders = 0; ///< the folders' own, without what is in them

    bool operator==(const FoundSpace& other) const = default;
};

/// Adds up the tree of a scan. Space that is no item's (free, unread, of backups) does not count,
/// nor does what is mounted on another file system, like an encrypted home. Looks at each node.
[[nodiscard]] FoundSpace foundSpace(const TopFolder& root);

/// The same in steps, for a tree of millions. Good until the tree changes.
class FoundSpaceCount {
public:
    explicit FoundSpaceCount(const TopFolder& root);

    /// Looks at so many nodes, or some more. False when there are none left.
    bool goOn(std::size_t nodes);

    /// All of it once goOn() was false.
    const FoundSpace& found() const { return m_found; }

private:
    std::size_t count(const Folder& folder);

    const TopFolder& m_root;
    std::vector<const Folder*> m_left;
    FoundSpace m_found;
};

} // namespace tessera
