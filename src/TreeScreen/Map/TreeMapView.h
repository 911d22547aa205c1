// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Layout/LayoutObject.h"

#include <QImage>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tessera {

class Basket;
class File;
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

    /// Has boxes marked that stand for what is in the basket, which must outlive the view.
    void setBasket(const Basket* basket);
    /// To be called when it has changed.
    void basketChanged();
    /// The same when other settings say how boxes look.
    void paintAnew();

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
    /// A box that stands for a disk's space and for no file was clicked. It cannot be selected.
    void clickSpace();
    /// A click on this folder or document was the second of two on it. What the first one led to
    /// has been done. A second click on another box than the first is none at all.
    void doubleClickTreeItem(File& node);
    /// The pointer has moved over the box, or within it. Null when it points at no box any more:
    /// it has left, other windows are in front, a zoom begins, or the boxes are about to go away.
    void pointedAt(const LayoutObject* item);
    /// This folder or document is being dragged: a button is down on its box, and the pointer has
    /// left the place. The button's release is no click any more.
    void dragBegun(File& node);
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
    const LayoutObject* itemUnder(Point point) const;
    void placeTooltip(QPointF pointerOnScreen, TooltipType type);
    void pressed(const QMouseEvent& event, int clickCount);
    void drag(Point point);
    std::optional<Box> selectedBox() const;
    void click(File& node);
    bool requestMenu(const TreeBranch& branch, Point point, QPoint onScreen);
    bool requestMenuOfSelected();

    const UserDefaults& m_defaults;
    const Basket* m_basket = nullptr;

    std::vector<std::unique_ptr<TreeBranch>> m_branches;
    const TreeBranch* m_hoveredBranch = nullptr;
    const TreeBranch* m_pressedBranch = nullptr;
    Point m_pressedAt;
    int m_clickCount = 0;
    const File* m_firstClicked = nullptr; ///< to compare with, for it may be gone
    const LayoutObject* m_currentToolTip = nullptr;
    std::unique_ptr<TreePainter> m_painter;
    QImage m_picture;
    std::unique_ptr<ZoomAnimation> m_zoom;
};

} // namespace tessera
