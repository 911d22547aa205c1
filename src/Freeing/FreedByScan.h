// SPDX-License-Identifier: MIT
#pragma once

#include "Freeing/ChosenItems.h"
#include "Freeing/FreedSpace.h"
#include "Model/LinkedNames.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tessera {

class File;

/// A file that removing items may free, for the disk to be asked about it.
struct FileToLookAt {
    std::string path; ///< as placeOnDisk() says, as bytes
    std::uint64_t bytes = 0; ///< that it takes, by the scan
    std::uint64_t names = 1; ///< that it has among the items

    bool operator==(const FileToLookAt& other) const = default;
};

/// What the disk is to be asked, and what is known already.
struct FreeingQuestion {
    FreedSpace byScan;
    std::uint64_t folderBytes = 0; ///< of the folders' own blocks, which are a part of that
    std::vector<FileToLookAt> files; ///< the largest first
    std::size_t otherFiles = 0; ///< smaller ones, for which there was no room
};

/// What removing items will free, as far as the scan knows: their files and the blocks of their
/// folders. A file with several names is freed with the last of them. One that has a name elsewhere
/// in the tree frees nothing; one whose names in the tree are all among the items, but which has
/// more, may free nothing: of those the tree does not know, and some file systems count more than
/// there are.
///
/// Good until the tree changes. Main thread only.
class FreedByScan {
public:
    /// The items are of one tree; of one that lies in another nothing counts twice. Looks at each
    /// node below them, and at all the names of LinkedNames.
    explicit FreedByScan(const std::vector<const File*>& items);

    const FreedSpace& space() const { return m_space; }

    /// With no more than so many files. Those that take nothing are left out. Looks at each node
    /// once more.
    FreeingQuestion questionAbout(std::size_t mostFiles) const;

private:
    class LargestFiles;

    void countFolders();
    void countLinks();

    ChosenItems m_items;
    std::vector<LinkedNames::Share> m_shares; ///< of files with several names
    std::uint64_t m_folderBytes = 0;
    FreedSpace m_space;
};

} // namespace tessera
