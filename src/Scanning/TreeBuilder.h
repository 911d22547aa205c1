// SPDX-License-Identifier: MIT
#pragma once

#include "Base/PathHash.h"
#include "Model/TopFolder.h"
#include "Scanning/DirectoryEnumerator.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Builds a tree from the items of a walk. A folder is attached to its parent only when it is
/// complete, so totals flow upward by one addition for each folder.
class TreeBuilder {
public:
    explicit TreeBuilder(std::unique_ptr<TopFolder> root);

    /// Fetches the next item of the walk; false at its end. What the walk finds out on the way
    /// there is of the folder that was added last, or before any item of the root: the tree takes
    /// it.
    [[nodiscard]] bool fetchNext(DirectoryEnumerator& walk, DirectoryItem& item);

    /// Takes the next item of a depth-first walk. Returns the bytes by which the tree has grown:
    /// none for a folder, and for a further name of a file that was counted before.
    std::uint64_t add(const DirectoryItem& item);

    /// The folder that was added last is passed by on purpose.
    void leaveOutLast();

    /// The absolute path of an item that is about to be added, or was added last.
    std::string pathOf(unsigned level, std::string_view name) const;

    /// Attaches every folder that is still open.
    void closeAll();

    TopFolder& root() { return *m_root; }
    std::unique_ptr<TopFolder> takeRoot();

private:
    struct OpenFolder {
        std::unique_ptr<Folder> folder;
        PathHash path;
    };

    void enter(const EnteredDirectory& entered);
    std::uint64_t countedBytes(File& document, const DirectoryItem& item);
    std::string pathOfCurrent() const;
    Folder& current();
    PathHash currentPath() const;
    void closeDownTo(std::size_t depth);

    std::unique_ptr<TopFolder> m_root;
    PathHash m_rootPath;
    std::vector<OpenFolder> m_open; ///< below the root, outermost first
};

} // namespace tessera
