// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Layout/LayoutObject.h"

#include <QTransform>

#include <memory>
#include <string>
#include <vector>

class QMenu;
class QPainter;

namespace tessera {

class BoxCanvas;
class TreeCommandTarget;
class TreeMapView;
struct RenderedLevel;

/// One level of the picture: the boxes of one folder's children, and the branches nested in them.
/// A light object, for a picture has thousands: the TreeMapView is the only widget and hands each
/// branch the events that fall on it. Main thread only.
class TreeBranch final {
public:
    /// `frame` is in the parent branch's coordinates; for the top branch, in the map's.
    explicit TreeBranch(const Rect& frame);
    /// Turns a rendered level, and those nested in it, into branches of the map (which may be
    /// null).
    static std::unique_ptr<TreeBranch> make(RenderedLevel level, TreeMapView* treeView);

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

    /// Applied to folder boxes alone, when they are painted; always the identity.
    const QTransform& scale() const { return m_scale; }

    /// The shown folder's name, as bytes.
    const std::string& name() const { return m_name; }
    void setName(std::string name) { m_name = std::move(name); }

    /// What a level without boxes says in its middle (UTF-8); may be empty.
    const std::string& textWithoutBoxes() const { return m_textWithoutBoxes; }

    /// The map that holds the branch, or null. Not owned.
    TreeMapView* treeView() const { return m_treeView; }
    void setTreeView(TreeMapView* treeView) { m_treeView = treeView; }

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

    /// Paints this level alone, not the ones nested in it; the origin is this branch's.
    void draw(QPainter& painter) const;
    void draw(BoxCanvas& canvas) const;

    /// The pointer came over this branch: it becomes the map's hovered branch.
    void cursorUpdate();

    /// A click ended here: selects the folder or document under the point and posts
    /// "ClickTreeItem" with it unless it was selected already, and then "DoubleClickTreeItem" when
    /// `clickCount` is exactly 2. Observers may rebuild the picture: this branch may be gone after.
    void mouseUp(Point inTreeView, int clickCount);

    /// Selects and posts as mouseUp() does, and returns the menu of the folder or document under
    /// the point; null where there is none. This branch may be gone after.
    std::unique_ptr<QMenu> menuForEvent(Point inTreeView, TreeCommandTarget* target);

private:
    File* clickableAt(Point inTreeView) const;
    void drawItem(BoxCanvas& canvas, const LayoutObject& item, const TreeBranch* nested) const;

    Rect m_frame;
    TreeBranch* m_parentBranch = nullptr;
    std::vector<std::unique_ptr<TreeBranch>> m_subBranches;
    long m_level = 0;
    QTransform m_scale;
    std::string m_name;
    std::string m_textWithoutBoxes;
    TreeMapView* m_treeView = nullptr;
    std::vector<std::unique_ptr<LayoutObject>> m_layoutItems;
};

} // namespace tessera
