// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Picture/FolderTitles.h"

class QPainter;

namespace tessera {
class TreeBranch;
}

namespace tessera::test {

/// Paints the boxes of one branch with the program's own code, but in full, whatever the branches
/// nested in it would hide. The painter's origin is the branch's.
void paintWholeLevel(QPainter& painter, const TreeBranch& branch, FolderTitles titles);

} // namespace tessera::test
