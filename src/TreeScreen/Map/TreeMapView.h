// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <QImage>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QMenu;

namespace tessera {

class File;
class LayoutObject;
class TreeBranch;
class TreeCommandTarget;
class TreePainter;
class UserDefaults;
class ZoomAnimation;
enum class TooltipType : std::uint8_t;

/// The black canvas of the tree screen: the one widget for all branches, to which it hands the
/// pointer's events as if each were a view of its own. It moves the tooltip with the pointer and
/// knows where a node's box lies. Coordinates are in points from its top left.
class TreeMapView final : public QWidget {
    Q_OBJECT

public:
    /// `defaults` must outlive the view.
    explicit TreeMapView(const UserDefaults& defaults, QWidget* parent = nullptr);
    ~TreeMapView() override;

    /// The hovered branch, or null: the deepest one that the pointer was last over, until that
    /// branch goes away. Hides QWidget's pointer shape on purpose: the map never changes the
    /// shape.
    TreeBranch* cursor() const { return m_cursor; }
    void setCursor(TreeBranch* branch) { m_cursor = branch; }

    /// The top branches, bottom to top.
    const std::vector<std::unique_ptr<TreeBranch>>& branches() const { return m_branches; }
    /// Adds a branch above the others.
    void addBranch(std::unique_ptr<TreeBranch> branch);
    void addBranchBelow(std::unique_ptr<TreeBranch> branch);
    /// May be called while a branch handles an event: that branch lives on until it has done so.
    /// Ends a zoom, without a word. The tooltip closes: what it describes may be gone or changed.
    void removeAllBranches();

    /// Shows the animation instead of the branches until these are removed. Until then the map has
    /// no tooltip.
    void startZoom(std::unique_ptr<ZoomAnimation> zoom);
    bool isZooming() const { return m_zoom != nullptr; }

    /// The branch and everything below it on black, as large as the map is.
    QImage paint(const TreeBranch& branch);

    /// The box of the node in the first branch that shows it; nothing when none does.
    std::optional<Rect> findRectForFile(const File& file) const;
    /// The same among `inBranch` and what is nested in it.
    std::optional<Rect> findRectForFile(const File& file, const TreeBranch& inBranch) const;

    /// Whether the picture has a box for the node, or one for several nodes of which it is one.
    bool shows(const File& file) const;

    /// Performs the commands of context menus; null disables them all. Not owned.
    void setCommandTarget(TreeCommandTarget* target) { m_commandTarget = target; }

    void hideTooltip();

    /// The item whose details the tooltip holds, also while it is hidden; null before the first
    /// and when its branch went away.
    const LayoutObject* currentToolTip() const { return m_currentToolTip; }

    /// All branches painted at the screen's resolution; painted anew only after a change.
    const QImage& picture();

signals:
    /// The view's size changed.
    void frameChanged();
    /// The zoom came to its end, or a button was pressed meanwhile, whose press comes next. The
    /// map shows the zoom's last picture until its branches are removed.
    void zoomEnded();
    /// The key of the context menu was pressed, and no box that has a menu is selected.
    void menuKeyInVain();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    class Dispatch;
    struct Box {
        TreeBranch* branch = nullptr;
        Rect inTreeView;
    };

    TreeBranch* branchAt(Point point) const;
    void updateCursor(Point point);
    void hover(Point point, QPointF onScreen);
    void placeTooltip(QPointF pointerOnScreen, TooltipType type);
    void pressed(const QMouseEvent& event, int clickCount);
    std::optional<Box> selectedBox() const;
    bool showMenu(TreeBranch& branch, Point point, QPoint onScreen);
    bool showMenuOfSelected();

    const UserDefaults& m_defaults;
    TreeCommandTarget* m_commandTarget = nullptr;

    std::vector<std::unique_ptr<TreeBranch>> m_branches;
    /// Removed while an event was being handled; released when that is over.
    std::vector<std::unique_ptr<TreeBranch>> m_retiredBranches;
    int m_dispatchDepth = 0;

    TreeBranch* m_cursor = nullptr;
    TreeBranch* m_pressedBranch = nullptr;
    int m_clickCount = 0;
    const LayoutObject* m_currentToolTip = nullptr;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<TreePainter> m_painter;
    QImage m_picture;
    std::unique_ptr<ZoomAnimation> m_zoom;
};

} // namespace tessera
