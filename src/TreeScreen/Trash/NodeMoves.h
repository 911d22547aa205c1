// SPDX-License-Identifier: MIT
#pragma once

#include "Model/TreeEdit.h"

#include <string>
#include <vector>

namespace tessera {

class TreeScreen;

// How nodes follow what moves on the disk. Paths are those of the tree.

/// Takes the node, which is not the root, out of its tree, and tells the screen before.
LooseNode takeFromScreen(File& node, TreeScreen& screen);

/// The same of several, none of which lies in another.
std::vector<LooseNode> takeFromScreen(const std::vector<File*>& nodes, TreeScreen& screen);

/// Gives a node that is in no tree the name that the new path says. Those below it that know their
/// own paths learn them.
void renameNode(File& node, const std::string& from, const std::string& to);

/// Puts the node where the path says, and folders that the tree does not know with it. Returns the
/// outermost node that joined, of which the screen has heard. What lies outside the tree is
/// released; then it is null.
const File* putOnScreen(
    TopFolder& top, const std::string& path, LooseNode loose, TreeScreen& screen);

} // namespace tessera
