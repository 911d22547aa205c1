// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Layout/LayoutObject.h"

#include <memory>
#include <string>
#include <vector>

namespace tessera {

class File;
struct RenderedLevel;

/// One level of the picture: the boxes of one folder's children, and the branches nested in them.
/// A light object, for a picture has thousands: the map that shows them is the only widget. Main
/// thread only.
class TreeBranch final {
public:
    /// `frame` is in the parent branch's coordinates; for the top branch, in the map's.
    explicit TreeBranch(const Rect& frame);
    /// Turns a rendered level, and those nested in it, into branches.
    static std::unique_ptr<TreeBranch> make(RenderedLevel level);

    TreeBranch(const TreeBranch&) = delete;
    TreeBranch& operator=(const TreeBranch&) = delete;
    ~TreeBranch() = default;

    const Rect& frame() const { return m_frame; }
    TreeBranch* parentBranch() const { return m_parentBranch; }

    /// Bottom to top.
    const std::vector<std::unique_ptr<TreeBranch>>& subBranches() const { return m_subBranches; }
    void addSubBranch(std::unique_ptr<TreeBranch> branch);

    /// 0 for the outermost level, 1 for the next, and so on.
    long level() const { return m_level; }
    void setLevel(long level) { m_level = level; }

    /// The shown folder's name, as bytes.
    const std::string& name() const { return m_name; }
    void setName(std::string name) { m_name = std::move(name); }

    /// What a level without boxes says in its middle (UTF-8); may be empty.
    const std::string& textWithoutBoxes() const { return m_textWithoutBoxes; }

    /// The boxes of this level, in the order of drawing and of hit testing.
    const std::vector<std::unique_ptr<LayoutObject>>& layoutItems() const { return m_layoutItems; }
    void setLayoutItems(std::vector<std::unique_ptr<LayoutObject>> items);

    /// Where this branch's own (0, 0) lies in the map.
    Point originInTreeView() const;
    Point convertFromTreeView(Point inTreeView) const;
    Rect convertToTreeView(const Rect& inBranch) const;

    /// The deepest branch whose frame contains the point, this one included; null when the point
    /// is outside. Of branches that overlap, the topmost.
    TreeBranch* branchAt(Point inTreeView);

    /// The folder or document of this level whose box contains the point. Of several boxes the
    /// first that stands for a node counts. Null where there is none, as on groups, and on space
    /// that stands for no file.
    File* clickableAt(Point inTreeView) const;

private:
    Rect m_frame;
    TreeBranch* m_parentBranch = nullptr;
    std::vector<std::unique_ptr<TreeBranch>> m_subBranches;
    long m_level = 0;
    std::string m_name;
    std::string m_textWithoutBoxes;
    std::vector<std::unique_ptr<LayoutObject>> m_layoutItems;
};

} // namespace tessera
