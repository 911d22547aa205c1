// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LinkedNames.h"
#include "Model/TopFolder.h"

#include <memory>
#include <vector>

namespace tessera {

// Changes of a finished tree, under which each file with several names goes on counting once, and
// what the scan found beside the nodes stays true. Whoever takes nodes out of a tree, or puts nodes
// into one, does it by these.

/// A node that is in no tree, with the names at and below it of files that have several, and what
/// was found there beside the nodes.
struct LooseNode {
    std::unique_ptr<File> node;
    LinkedNames names{};
    ScanFindings findings{};
};

/// The root of a scan, to become a part of another tree.
[[nodiscard]] LooseNode loose(std::unique_ptr<TopFolder> scanned);

/// The same with another folder in the place of that root, which has its children.
[[nodiscard]] LooseNode loose(std::unique_ptr<Folder> inItsPlace, TopFolder& scanned);

/// Takes a node, which is not the root, out of its tree.
LooseNode takeOut(File& node);

/// Takes several nodes out of their tree, none of which lies in another: what left with each, in
/// their order. Files of several names are looked for once for all.
std::vector<LooseNode> takeOut(const std::vector<File*>& nodes);

/// Adds it to a folder of a tree.
File& putIn(Folder& parent, LooseNode coming);

/// Puts `with` in the place of `old`, which is not the root of its tree. What leaves is returned.
std::unique_ptr<File> exchange(File& old, LooseNode with);

} // namespace tessera
