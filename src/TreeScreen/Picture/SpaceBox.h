// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class BoxCanvas;
class File;
struct Rect;

/// Paints a volume's free space: black, without any margin.
void paintFreeSpaceBox(BoxCanvas& canvas, const File& freeSpace, const Rect& rect);

/// Paints space that the scan could not account for, on a level of that depth: grey.
void paintUnaccountedBox(BoxCanvas& canvas, const File& space, const Rect& rect, long level);

} // namespace tessera
