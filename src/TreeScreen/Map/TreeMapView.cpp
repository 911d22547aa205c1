// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/TreeMapView.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/File.h"
#include "Model/NodeLookup.h"
#include "Model/TooltipType.h"
#include "TreeScreen/Map/ZoomAnimation.h"
#include "TreeScreen/Picture/BasketMarks.h"
#include "TreeScreen/Picture/FolderTitles.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/Picture/TreePainter.h"
#include "TreeScreen/Tooltip/TooltipController.h"
#include "TreeScreen/Tooltip/TooltipPlacement.h"
#include "TreeScreen/Tooltip/TooltipSize.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

Point toPoint(QPointF point)
{
    return {point.x(), point.y()};
}

/// Visits `top` and all branches nested in it, depth first and in order, until `visit` is true.
template <typename Branch, typename Visit>
bool visitBranches(Branch& top, Visit visit)
{
    std::vector<Branch*> open{&top};
    while (!open.empty()) {
        Branch* const branch = open.back();
        open.pop_back();
        if (visit(*branch)) {
            return true;
        }
        const auto& nested = branch->subBranches();
        std::for_each(nested.rbegin(), nested.rend(), [&open](const auto& child) {
            open.push_back(child.get());
        });
    }
    return false;
}

bool isSpaceAt(const TreeBranch& branch, Point inTreeView)
{
    const Point point = branch.convertFromTreeView(inTreeView);
    return std::ranges::any_of(branch.layoutItems(), [&point](const auto& item) {
        return item->ref != nullptr && !isItem(*item->ref) && item->rect.contains(point);
    });
}

} // namespace

TreeMapView::TreeMapView(const UserDefaults& defaults, QWidget* parent)
    : QWidget(parent)
    , m_defaults(defaults)
    , m_painter(std::make_unique<TreePainter>())
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    // Made now rather than when the pointer first moves, for it takes a while to load.
    TooltipController::sharedInstance();
}

TreeMapView::~TreeMapView()
{
    hideTooltip();
}

void TreeMapView::addBranch(std::unique_ptr<TreeBranch> branch)
{
    m_branches.push_back(std::move(branch));
    m_picture = QImage();
    update();
}

void TreeMapView::addBranchBelow(std::unique_ptr<TreeBranch> branch)
{
    m_branches.insert(m_branches.begin(), std::move(branch));
    m_picture = QImage();
    update();
}

void TreeMapView::removeAllBranches()
{
    m_zoom.reset();
    hideTooltip();
    emit pointedAt(nullptr);
    m_branches.clear();
    m_hoveredBranch = nullptr;
    m_pressedBranch = nullptr;
    // The items went with the branches; one made later may get the same address.
    m_currentToolTip = nullptr;
    m_picture = QImage();
    update();
}

void TreeMapView::startZoom(std::unique_ptr<ZoomAnimation> zoom)
{
    hideTooltip();
    emit pointedAt(nullptr);
    m_zoom = std::move(zoom);
    connect(m_zoom.get(), &ZoomAnimation::frameDue, this, qOverload<>(&TreeMapView::update));
    connect(m_zoom.get(), &ZoomAnimation::finished, this, &TreeMapView::zoomEnded);
    update();
}

std::optional<Rect> TreeMapView::findRectForFile(const File& file) const
{
    for (const auto& branch : m_branches) {
        if (const std::optional<Rect> found = findRectForFile(file, *branch)) {
            return found;
        }
    }
    return std::nullopt;
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): an answer of this map
std::optional<Rect> TreeMapView::findRectForFile(const File& file, const TreeBranch& inBranch) const
{
    std::optional<Rect> result;
    visitBranches(inBranch, [&](const TreeBranch& branch) {
        const auto& items = branch.layoutItems();
        const auto found
            = std::ranges::find(items, &file, [](const auto& item) { return item->ref; });
        if (found != items.end()) {
            result = branch.convertToTreeView((*found)->rect);
        }
        return result.has_value();
    });
    return result;
}

bool TreeMapView::shows(const File& file) const
{
    const auto standsForIt = [&file](const auto& item) {
        if (item->ref != nullptr) {
            return item->ref == &file;
        }
        const auto* const group = dynamic_cast<const MultiLayoutObject*>(item.get());
        return group != nullptr && std::ranges::find(group->refs, &file) != group->refs.end();
    };
    return std::ranges::any_of(m_branches, [&standsForIt](const auto& top) {
        return visitBranches(*top, [&standsForIt](const TreeBranch& branch) {
            return std::ranges::any_of(branch.layoutItems(), standsForIt);
        });
    });
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): asked of a certain map
void TreeMapView::hideTooltip()
{
    TooltipController::sharedInstance().window().hide();
}

void TreeMapView::setBasket(const Basket* basket)
{
    m_basket = basket;
    basketChanged();
}

void TreeMapView::basketChanged()
{
    paintAnew();
}

void TreeMapView::paintAnew()
{
    m_picture = QImage();
    update();
}

QImage TreeMapView::paint(const TreeBranch& branch)
{
    QImage picture
        = m_painter->paint(branch, size(), devicePixelRatioF(), folderTitles(m_defaults));
    if (m_basket != nullptr) {
        paintBasketMarks(picture, branch, *m_basket);
    }
    return picture;
}

const QImage& TreeMapView::picture()
{
    const double scale = devicePixelRatioF();
    const bool isFresh = !m_picture.isNull() && m_picture.devicePixelRatio() == scale;
    if (!isFresh && !m_branches.empty()) {
        m_picture = paint(*m_branches.front());
    }
    return m_picture;
}

bool TreeMapView::event(QEvent* event)
{
    // Other windows are in front now, and the tooltip would stay above them.
    if (event->type() == QEvent::WindowDeactivate) {
        hideTooltip();
        emit pointedAt(nullptr);
    }
    return QWidget::event(event);
}

void TreeMapView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (m_zoom != nullptr) {
        m_zoom->paint(painter);
    } else if (m_branches.empty()) {
        painter.fillRect(event->rect(), Qt::black);
    } else {
        painter.drawImage(QPointF(0, 0), picture());
    }
}

void TreeMapView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_picture = QImage();
    emit frameChanged();
}

void TreeMapView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    hideTooltip();
}

void TreeMapView::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    hideTooltip();
    emit pointedAt(nullptr);
}

TreeBranch* TreeMapView::branchAt(Point point) const
{
    TreeBranch* topmost = nullptr;
    for (const auto& top : m_branches) {
        TreeBranch* const hit = top->branchAt(point);
        topmost = hit != nullptr ? hit : topmost;
    }
    return topmost;
}

void TreeMapView::updateHoveredBranch(Point point)
{
    if (const TreeBranch* const branch = branchAt(point)) {
        m_hoveredBranch = branch;
    }
}

void TreeMapView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton && m_pressedBranch != nullptr && !isZooming()) {
        drag(toPoint(event->position()));
        return;
    }
    // In a window at the back the user is not looking here. During a zoom the boxes are not where
    // the branches have them.
    if (event->buttons() != Qt::NoButton || !isActiveWindow() || isZooming()) {
        return;
    }
    updateHoveredBranch(toPoint(event->position()));
    hover(toPoint(event->position()), event->globalPosition());
}

void TreeMapView::drag(Point point)
{
    const QPointF way(point.x - m_pressedAt.x, point.y - m_pressedAt.y);
    if (way.manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    File* const node = m_pressedBranch->clickableAt(m_pressedAt);
    if (node != nullptr && isItem(*node)) {
        m_pressedBranch = nullptr;
        m_firstClicked = nullptr;
        hideTooltip();
        emit dragBegun(*node);
    }
}

void TreeMapView::hover(Point point, QPointF onScreen)
{
    const LayoutObject* const item = itemUnder(point);
    if (item != nullptr) {
        emit pointedAt(item);
    }
    const TooltipType type = tooltipType(m_defaults);
    if (type == TooltipType::None) {
        return;
    }
    if (item != nullptr && item != m_currentToolTip) {
        TooltipController::sharedInstance().setLayoutObject(*item);
        m_currentToolTip = item;
    }
    if (m_currentToolTip != nullptr) {
        placeTooltip(onScreen, type);
    }
}

/// Of the hovered branch; null beside its boxes.
const LayoutObject* TreeMapView::itemUnder(Point point) const
{
    if (m_hoveredBranch == nullptr) {
        return nullptr;
    }
    const auto& items = m_hoveredBranch->layoutItems();
    const Point inBranch = m_hoveredBranch->convertFromTreeView(point);
    const auto last = std::find_if(items.rbegin(), items.rend(), [&inBranch](const auto& item) {
        return item->rect.contains(inBranch);
    });
    return last == items.rend() ? nullptr : last->get();
}

void TreeMapView::placeTooltip(QPointF pointerOnScreen, TooltipType type)
{
    const TooltipController& controller = TooltipController::sharedInstance();
    const Rect& desired = controller.desiredRect();
    const QSizeF size(
        desired.width, type == TooltipType::Short ? kShortTooltipHeight : desired.height);
    const QScreen* const ownScreen = window()->screen();
    const QRectF screenFrame = ownScreen != nullptr ? ownScreen->geometry() : QRect();
    QWidget& tooltip = controller.window();
    // Placed before it is shown, lest it flash where it was hidden.
    tooltip.setGeometry(tooltipFrame(pointerOnScreen, size, screenFrame).toRect());
    if (!tooltip.isVisible()) {
        tooltip.winId();
        // Window systems that know no desktop coordinates place it relative to this window.
        tooltip.windowHandle()->setTransientParent(window()->windowHandle());
        tooltip.show();
    }
}

void TreeMapView::mousePressEvent(QMouseEvent* event)
{
    pressed(*event, 1);
}

void TreeMapView::mouseDoubleClickEvent(QMouseEvent* event)
{
    pressed(*event, 2);
}

void TreeMapView::pressed(const QMouseEvent& event, int clickCount)
{
    if (isZooming()) {
        emit zoomEnded();
    }
    if (event.button() == Qt::LeftButton) {
        m_pressedAt = toPoint(event.position());
        m_pressedBranch = branchAt(m_pressedAt);
        m_clickCount = clickCount;
        m_firstClicked = clickCount == 1 ? nullptr : m_firstClicked;
    }
}

void TreeMapView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_pressedBranch == nullptr) {
        return;
    }
    // A view gets the release of every press on it, and acts on the box where the release was.
    const Point point = toPoint(event->position());
    File* const node = m_pressedBranch->clickableAt(point);
    const bool isOnSpace = node == nullptr && isSpaceAt(*m_pressedBranch, point);
    m_pressedBranch = nullptr;
    const bool isSecond = m_clickCount == 2;
    // What the first click led to may have brought a box here that the user never aimed at.
    if (std::exchange(m_firstClicked, node) != node && isSecond) {
        return;
    }
    if (isOnSpace) {
        emit clickSpace();
    }
    if (node == nullptr) {
        return;
    }
    click(*node);
    if (isSecond) {
        emit doubleClickTreeItem(*node);
    }
}

void TreeMapView::click(File& node)
{
    if (!node.selected()) {
        emit clickTreeItem(node);
    }
}

std::optional<TreeMapView::Box> TreeMapView::selectedBox() const
{
    std::optional<Box> result;
    for (const auto& top : m_branches) {
        const bool found = visitBranches(*top, [&result](const TreeBranch& branch) {
            const auto& items = branch.layoutItems();
            const auto selected = std::ranges::find_if(items, [](const auto& item) {
                return item->ref != nullptr && item->ref->selected();
            });
            if (selected != items.end()) {
                result = Box{&branch, branch.convertToTreeView((*selected)->rect)};
            }
            return result.has_value();
        });
        if (found) {
            break;
        }
    }
    return result;
}

void TreeMapView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() != QContextMenuEvent::Keyboard) {
        const Point point = toPoint(event->pos());
        if (const TreeBranch* const branch = branchAt(point)) {
            requestMenu(*branch, point, event->globalPos());
        }
        return;
    }
    if (!requestMenuOfSelected()) {
        emit menuKeyInVain();
    }
}

bool TreeMapView::requestMenuOfSelected()
{
    const std::optional<Box> box = selectedBox();
    if (!box) {
        return false;
    }
    const QRectF rect(
        box->inTreeView.x, box->inTreeView.y, box->inTreeView.width, box->inTreeView.height);
    const QPointF centre = rect.center();
    return requestMenu(*box->branch, toPoint(centre), mapToGlobal(centre).toPoint());
}

bool TreeMapView::requestMenu(const TreeBranch& branch, Point point, QPoint onScreen)
{
    File* const node = branch.clickableAt(point);
    if (node == nullptr) {
        return false;
    }
    hideTooltip();
    click(*node);
    emit menuRequested(*node, onScreen);
    return true;
}

} // namespace tessera
