// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class File;
class TreeBranch;
struct Rect;

/// Paints a volume's free space: black, without any margin.
void paintFreeSpaceBox(BoxCanvas& canvas, const File& freeSpace, const Rect& rect);

/// Paints space that the scan could not account for: grey.
void paintUnaccountedBox(
    BoxCanvas& canvas, const TreeBranch& branch, const File& space, const Rect& rect);

} // namespace tessera
