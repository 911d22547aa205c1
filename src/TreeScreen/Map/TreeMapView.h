// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <QImage>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tessera {

class File;
class LayoutObject;
class TreeBranch;
class TreePainter;
class UserDefaults;
class ZoomAnimation;
enum class TooltipType : std::uint8_t;

/// The black canvas of the tree screen: the one widget for all branches. It tells which item the
/// user points at and how, decides nothing, moves the tooltip with the pointer and knows where a
/// node's box lies. Coordinates are in points from its top left.
class TreeMapView final : public QWidget {
    Q_OBJECT

public:
    /// `defaults` must outlive the view.
    explicit TreeMapView(const UserDefaults& defaults, QWidget* parent = nullptr);
    ~TreeMapView() override;

    /// The deepest branch that the pointer was last over, until that branch goes away; or null.
    const TreeBranch* hoveredBranch() const { return m_hoveredBranch; }

    /// The top branches, bottom to top.
    const std::vector<std::unique_ptr<TreeBranch>>& branches() const { return m_branches; }
    /// Adds a branch above the others.
    void addBranch(std::unique_ptr<TreeBranch> branch);
    void addBranchBelow(std::unique_ptr<TreeBranch> branch);
    /// Ends a zoom, without a word. The tooltip closes: what it describes may be gone or changed.
    /// May be called by whoever hears of a click.
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

    void hideTooltip();

    /// The item whose details the tooltip holds, also while it is hidden; null before the first
    /// and when its branch went away.
    const LayoutObject* currentToolTip() const { return m_currentToolTip; }

    /// The branches at the screen's resolution, painted anew only after a change. Of several, as
    /// there are while a zoom hides them, it is the lowest alone.
    const QImage& picture();

signals:
    /// A folder or document that is not selected was clicked, with either button.
    void clickTreeItem(File& node);
    /// A click on this folder or document was the second of two. What the first one led to has
    /// been done.
    void doubleClickTreeItem(File& node);
    /// The menu of this folder or document is wanted, at that place on the screen. By now it has
    /// been clicked.
    void menuRequested(File& node, QPoint onScreen);
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
    struct Box {
        const TreeBranch* branch = nullptr;
        Rect inTreeView;
    };

    TreeBranch* branchAt(Point point) const;
    void updateHoveredBranch(Point point);
    void hover(Point point, QPointF onScreen);
    void placeTooltip(QPointF pointerOnScreen, TooltipType type);
    void pressed(const QMouseEvent& event, int clickCount);
    std::optional<Box> selectedBox() const;
    void click(File& node);
    bool requestMenu(const TreeBranch& branch, Point point, QPoint onScreen);
    bool requestMenuOfSelected();

    const UserDefaults& m_defaults;

    std::vector<std::unique_ptr<TreeBranch>> m_branches;
    const TreeBranch* m_hoveredBranch = nullptr;
    const TreeBranch* m_pressedBranch = nullptr;
    int m_clickCount = 0;
    const LayoutObject* m_currentToolTip = nullptr;
    std::unique_ptr<TreePainter> m_painter;
    QImage m_picture;
    std::unique_ptr<ZoomAnimation> m_zoom;
};

} // namespace tessera
