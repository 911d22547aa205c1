// SPDX-License-Identifier: MIT
#pragma once

class QPainter;

namespace tessera {
class TreeBranch;
}

namespace tessera::test {

/// Paints the boxes of one branch the plain, slow way, with general paths and pens; labels are
/// left out. What the program paints fast must look the same.
void paintReferenceLevel(QPainter& painter, const TreeBranch& branch);

} // namespace tessera::test
