// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Picture/FolderTitles.h"

#include <span>

namespace tessera {

class BoxCanvas;
class Folder;
struct Rect;

/// Paints a folder: a rounded box in its branch's colour, rimmed in black below the top level,
/// with the name at the upper left, and the size behind it in a quieter ink. `rect` is its
/// rectangle on a level of that depth; `covered` names the parts of it that boxes of levels further
/// down are painted over.
void paintFolderBox(
    BoxCanvas& canvas,
    const Folder& folder,
    const Rect& rect,
    long level,
    std::span<const Rect> covered,
    FolderTitles titles);

} // namespace tessera
