// SPDX-License-Identifier: MIT
#pragma once

#include <unordered_set>
#include <vector>

namespace tessera {

class File;
class Folder;
class TopFolder;

/// Items of one tree, and what is below them.
class ChosenItems {
public:
    explicit ChosenItems(const std::vector<const File*>& items);

    /// Those that lie in no other one, each once.
    const std::vector<const File*>& outermost() const { return m_outermost; }

    /// Whether the node is one of them or lies below one. Fast for nodes of one folder in a row.
    bool contain(const File& node) const;

    /// Null without items, and in a tree that is no scan's.
    const TopFolder* root() const;

private:
    bool isBelowOne(const File& node) const;

    std::unordered_set<const File*> m_all;
    std::vector<const File*> m_outermost;
    mutable const Folder* m_lastFolder = nullptr; ///< that contain() asked about
    mutable bool m_isLastInside = false;
};

} // namespace tessera
