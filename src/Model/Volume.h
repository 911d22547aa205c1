// SPDX-License-Identifier: MIT
#pragma once

#include "Model/FreeSpace.h"
#include "Model/TopFolder.h"
#include "Model/Unknown.h"

#include <cstdint>

namespace tessera {

class FileSystemAttributes;
struct FileSystemSizes;

/// The root of a scan of a whole mounted volume. Beside the real contents it holds a node for the
/// free space and one for used space that the walk could not see, so that the picture adds up to
/// the volume's capacity. Its own totalAllocation() is the used space, not the children's sum.
class Volume final : public TopFolder {
public:
    static constexpr NodeType kType = NodeType::Volume;
    static bool isKind(NodeType type) { return type == kType; }

    ~Volume() = default;

    /// Bytes free and in all, as of the last refresh.
    std::uint64_t freeSize() const { return m_freeSize; }
    std::uint64_t volumeSize() const { return m_volumeSize; }

    FreeSpace& freeFile() const { return *m_freeFile; }
    Unknown& unreadFile() const { return *m_unreadFile; }

    /// Reads the file system's sizes at origin(), sets both special nodes and the total from them
    /// and sorts. Sizes that cannot be read count as 0.
    void refreshVolume(const FileSystemAttributes& fileSystem);
    /// The same with sizes that were read already.
    void refreshVolume(const FileSystemSizes& sizes);

    /// Whether these may be sizes of the disk that was scanned, by the number of the file system
    /// that was read first: another may lie at its path when it is gone. True where a number is not
    /// known.
    bool mayBeSizesOfIt(const FileSystemSizes& sizes) const;

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);
    friend class File;

    Volume();

    std::uint64_t foundAllocation() const;

    std::uint64_t m_freeSize = 0;
    std::uint64_t m_volumeSize = 0;
    std::uint64_t m_device = 0; ///< 0 until one was read
    FreeSpace* m_freeFile;
    Unknown* m_unreadFile;
};

} // namespace tessera
