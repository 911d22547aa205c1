// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Layout/LayoutObject.h"

#include <memory>
#include <vector>

namespace tessera {

class Folder;

/// One level of the picture: the children of a folder, laid out, and the levels inside them.
struct RenderedLevel {
    Folder* folder = nullptr;
    Rect frame; ///< in the coordinates of the level around it, or of the view at the top
    long level = 0; ///< 0 at the top
    std::vector<std::unique_ptr<LayoutObject>> layoutItems; ///< in this level's own coordinates
    std::vector<RenderedLevel> nested;
};

/// Turns a folder into nested levels of boxes. A pure computation that reads the tree only, so
/// pictures can be made without a window.
class LevelRenderer {
public:
    /// `ignoreHiddenFiles`: hidden children take no space.
    explicit LevelRenderer(bool ignoreHiddenFiles)
        : m_ignoreHiddenFiles(ignoreHiddenFiles)
    {
    }

    enum class Placement {
        Top, ///< a margin is kept between the level's frame and its boxes
        Nested, ///< the boxes fill the frame
    };

    /// The folder at depth `level`, with `frame` in points. No folder, and a frame that the margin
    /// fills, give a level without items.
    RenderedLevel render(Folder* folder, const Rect& frame, Placement placement, long level) const;

    /// The folder at the top of a view with these bounds.
    RenderedLevel renderTop(Folder* folder, const Rect& bounds) const
    {
        return render(folder, bounds, Placement::Top, 0);
    }

private:
    class Candidates;

    std::vector<RenderedLevel> renderNested(
        const std::vector<LayoutObject*>& folderItems, long level) const;
    Candidates visibleChildren(const Folder& folder) const;

    bool m_ignoreHiddenFiles;
};

} // namespace tessera
