// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/SectionedCollectionView.h"

#include "HomeScreen/Grid/CollectionItemView.h"
#include "HomeScreen/Grid/SectionedCollectionViewDataSource.h"
#include "HomeScreen/Grid/SectionedCollectionViewDelegate.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QResizeEvent>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kUsualCount = 100;
constexpr int kDoubleClick = 2;

/// A view narrower than a section's least width has no columns there, and items of no limited
/// width.
int toPoints(float length)
{
    return static_cast<int>(std::fmin(length, static_cast<float>(QWIDGETSIZE_MAX)));
}

float itemWidthInSection(float width, const SectionedCollectionView::LayoutMetric& header)
{
    const float columns
        = std::min(std::floor(width / header.minWidth), static_cast<float>(header.count));
    const float itemWidth = std::floor(width / columns);
    return header.maxWidth > 0 ? std::fmin(itemWidth, header.maxWidth) : itemWidth;
}

bool movesSelection(int key)
{
    constexpr std::array kKeys{
        Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
    return std::ranges::find(kKeys, key) != kKeys.end();
}

} // namespace

SectionedCollectionView::SectionedCollectionView(QWidget* parent)
    : QWidget(parent)
{
    m_layoutMetrics.reserve(kUsualCount);
    setFocusPolicy(Qt::StrongFocus);
    if (parent != nullptr) {
        parent->installEventFilter(this);
    }
}

SectionedCollectionView::~SectionedCollectionView() = default;

void SectionedCollectionView::reloadData()
{
    clearSelection();
    m_layoutMetrics.clear();
    m_rightEdge.reset();
    const int sections = m_dataSource != nullptr ? m_dataSource->numberOfSections() : 0;
    for (int section = 0; section < sections; ++section) {
        addSection(section);
    }
    // The last of the views, as wide as a point, keeps its distance to the right edge.
    m_rightEdge = std::make_unique<QWidget>(this);
    m_rightEdge->setGeometry(0, 0, 1, 1);
    updateLayout();
}

void SectionedCollectionView::addSection(int section)
{
    LayoutMetric header;
    header.count = m_dataSource->numberOfViewsInSection(section);
    header.minWidth = static_cast<float>(m_dataSource->minimumWidthInSection(section));
    header.maxWidth = static_cast<float>(m_dataSource->maximumWidthInSection(section));
    const int count = header.count;
    addView(m_dataSource->headerForSection(section), std::move(header));
    for (int index = 0; index < count; ++index) {
        LayoutMetric item;
        item.type = LayoutMetric::Type::View;
        item.final = index == count - 1;
        addView(m_dataSource->viewForSection(section, index), std::move(item));
    }
}

void SectionedCollectionView::addView(std::unique_ptr<QWidget> view, LayoutMetric metric)
{
    view->setParent(this);
    view->show();
    metric.view = std::move(view);
    m_layoutMetrics.push_back(std::move(metric));
}

void SectionedCollectionView::updateLayout()
{
    const auto width = static_cast<float>(this->width());
    float y = 0;
    float x = 0;
    float itemWidth = 0;
    for (const LayoutMetric& metric : m_layoutMetrics) {
        QWidget& view = *metric.view;
        const auto height = static_cast<float>(view.height());
        if (metric.type == LayoutMetric::Type::Header) {
            view.setGeometry(0, toPoints(y), this->width(), view.height());
            y += height;
            itemWidth = itemWidthInSection(width, metric);
            x = 0;
            continue;
        }
        view.setGeometry(toPoints(x), toPoints(y), toPoints(itemWidth), view.height());
        if (metric.final) {
            y += height;
            continue;
        }
        x += itemWidth;
        if (x + itemWidth > width) {
            y += height;
            x = 0;
        }
    }
    if (height() != toPoints(std::floor(y))) {
        resize(parentWidget() != nullptr ? parentWidget()->width() : this->width(), toPoints(y));
    }
}

void SectionedCollectionView::selectItem(int section, int index)
{
    for (const Place& place : openPlaces()) {
        if (place.section == section && place.index == index) {
            select(place, 1);
        }
    }
}

void SectionedCollectionView::deselectAll()
{
    if (m_selectedView == nullptr || m_delegate == nullptr || !m_delegate->didDeselectView) {
        return;
    }
    m_delegate->didDeselectView(*m_selectedView, m_selectedSection, m_selectedIndex);
    clearSelection();
}

void SectionedCollectionView::clearSelection()
{
    m_selectedView = nullptr;
    m_selectedSection = -1;
    m_selectedIndex = -1;
}

void SectionedCollectionView::markNextForKeys(CollectionItemView* view)
{
    if (m_nextForKeys != nullptr) {
        m_nextForKeys->setNextForKeys(false);
    }
    m_nextForKeys = view;
    if (view != nullptr) {
        view->setNextForKeys(true);
    }
}

void SectionedCollectionView::focusInEvent(QFocusEvent* event)
{
    const bool isByKeys
        = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (isByKeys && m_enabled && m_selectedView == nullptr) {
        markNextForKeys(placeForKey(Qt::Key_Home).view);
    }
    QWidget::focusInEvent(event);
}

void SectionedCollectionView::focusOutEvent(QFocusEvent* event)
{
    markNextForKeys(nullptr);
    QWidget::focusOutEvent(event);
}

void SectionedCollectionView::resizeEvent(QResizeEvent* event)
{
    if (m_rightEdge != nullptr && event->oldSize().isValid()) {
        const int wider = event->size().width() - event->oldSize().width();
        m_rightEdge->move(m_rightEdge->x() + wider, m_rightEdge->y());
    }
    updateLayout();
    // The scroll area may be in the middle of taking in an earlier size of this view, whose scroll
    // range it would then keep.
    if (m_scrollView != nullptr) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the queue owns it
        QCoreApplication::postEvent(m_scrollView, new QEvent(QEvent::LayoutRequest));
    }
}

bool SectionedCollectionView::event(QEvent* event)
{
    if (parentWidget() != nullptr && event->type() == QEvent::ParentAboutToChange) {
        parentWidget()->removeEventFilter(this);
    } else if (parentWidget() != nullptr && event->type() == QEvent::ParentChange) {
        parentWidget()->installEventFilter(this);
        resize(parentWidget()->width(), height());
    }
    return QWidget::event(event);
}

bool SectionedCollectionView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        resize(parentWidget()->width(), height());
    }
    return QWidget::eventFilter(watched, event);
}

void SectionedCollectionView::mousePressEvent(QMouseEvent* event)
{
    mouseDown(*event, 1);
}

void SectionedCollectionView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mouseDown(*event, kDoubleClick);
}

void SectionedCollectionView::mouseDown(QMouseEvent& event, int clickCount)
{
    if (!m_enabled || event.button() != Qt::LeftButton) {
        return;
    }
    for (const Place& place : places()) {
        if (!place.view->geometry().contains(event.position().toPoint())) {
            continue;
        }
        if (place.view->disabled()) {
            break;
        }
        select(place, clickCount);
    }
}

void SectionedCollectionView::select(const Place& place, int clickCount)
{
    if (m_delegate == nullptr) {
        return;
    }
    if (m_selectedView != nullptr && m_delegate->didDeselectView) {
        m_delegate->didDeselectView(*m_selectedView, m_selectedSection, m_selectedIndex);
    }
    // Who is not told of a selection gets no double clicks either.
    if (!m_delegate->didSelectView) {
        return;
    }
    markNextForKeys(nullptr);
    m_selectedView = place.view;
    m_selectedSection = place.section;
    m_selectedIndex = place.index;
    if (clickCount < kDoubleClick) {
        m_delegate->didSelectView(*place.view, place.section, place.index);
    } else if (m_delegate->didDoubleClickView) {
        m_delegate->didDoubleClickView(*place.view, place.section, place.index);
    }
}

std::vector<SectionedCollectionView::Place> SectionedCollectionView::places() const
{
    std::vector<Place> result;
    int section = -1;
    int index = -1;
    for (const LayoutMetric& metric : m_layoutMetrics) {
        if (metric.type == LayoutMetric::Type::Header) {
            ++section;
            index = -1;
            continue;
        }
        ++index;
        result.push_back({qobject_cast<CollectionItemView*>(metric.view.get()), section, index});
    }
    return result;
}

std::vector<SectionedCollectionView::Place> SectionedCollectionView::openPlaces() const
{
    std::vector<Place> result = places();
    std::erase_if(result, [](const Place& place) { return place.view->disabled(); });
    return result;
}

SectionedCollectionView::Place SectionedCollectionView::placeForKey(int key) const
{
    const std::vector<Place> open = openPlaces();
    const auto selected = std::ranges::find(open, m_selectedView, &Place::view);
    if (open.empty()) {
        return {};
    }
    if (selected == open.end() || key == Qt::Key_Home) {
        return open.front();
    }
    if (key == Qt::Key_End) {
        return open.back();
    }
    if (key == Qt::Key_Left) {
        return selected == open.begin() ? *selected : *(selected - 1);
    }
    if (key == Qt::Key_Right) {
        return selected + 1 == open.end() ? *selected : *(selected + 1);
    }
    return nearestInNextRow(open, *selected, key == Qt::Key_Up ? -1 : 1);
}

SectionedCollectionView::Place SectionedCollectionView::nearestInNextRow(
    const std::vector<Place>& open, const Place& from, int downward)
{
    const QRect& frame = from.view->geometry();
    Place best = from;
    // Rows first: an item of a nearer row is better than one that is straight above or below.
    std::pair<int, int> least{QWIDGETSIZE_MAX, 0};
    for (const Place& place : open) {
        const QRect& other = place.view->geometry();
        const std::pair<int, int> distance{
            (other.y() - frame.y()) * downward, std::abs(other.x() - frame.x())};
        if (distance.first > 0 && distance < least) {
            best = place;
            least = distance;
        }
    }
    return best;
}

void SectionedCollectionView::keyPressEvent(QKeyEvent* event)
{
    const bool isHeard = m_enabled && movesSelection(event->key());
    const Place place = isHeard ? placeForKey(event->key()) : Place();
    if (place.view == nullptr) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (place.view != m_selectedView) {
        select(place, 1);
    }
    if (m_scrollView != nullptr) {
        m_scrollView->ensureWidgetVisible(place.view, 0, 0);
    }
}

} // namespace tessera
