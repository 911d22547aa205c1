// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class Folder;
class TreeBranch;
struct Rect;

/// Paints a folder: a rounded box in its branch's colour, rimmed in black below the top level,
/// with the name at the upper left. `nested` is the branch inside the box, or null.
void paintFolderBox(
    BoxCanvas& canvas,
    const TreeBranch& branch,
    const Folder& folder,
    const Rect& rect,
    const TreeBranch* nested);

} // namespace tessera
