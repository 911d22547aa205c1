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

    /// Takes the next item of a depth-first walk.
    void add(const DirectoryItem& item);

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

    Folder& current();
    PathHash currentPath() const;
    void closeDownTo(std::size_t depth);

    std::unique_ptr<TopFolder> m_root;
    PathHash m_rootPath;
    std::vector<OpenFolder> m_open; ///< below the root, outermost first
};

} // namespace tessera
