// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/SectionedCollectionView.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace tessera {

namespace {

constexpr int kDoubleClick = 2;

/// A view narrower than a section's least width has no columns there, and items of no limited
/// width.
int toPoints(float length)
{
    return static_cast<int>(std::fmin(length, static_cast<float>(QWIDGETSIZE_MAX)));
}

float itemWidthInSection(float width, const CollectionSection& section)
{
    const float columns = std::min(
        std::floor(width / section.minimumWidth), static_cast<float>(section.items.size()));
    const float itemWidth = std::floor(width / columns);
    return section.maximumWidth > 0 ? std::fmin(itemWidth, section.maximumWidth) : itemWidth;
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
    setFocusPolicy(Qt::StrongFocus);
    if (parent != nullptr) {
        parent->installEventFilter(this);
    }
}

SectionedCollectionView::~SectionedCollectionView() = default;

void SectionedCollectionView::setSections(std::vector<CollectionSection> sections)
{
    m_selected = {};
    m_sections = std::move(sections);
    const auto takeIn = [this](QWidget& view) {
        view.setParent(this);
        view.show();
    };
    for (const CollectionSection& section : m_sections) {
        takeIn(*section.header);
        if (section.items.empty() && section.placeholder != nullptr) {
            takeIn(*section.placeholder);
        }
        for (const auto& item : section.items) {
            takeIn(*item);
        }
    }
    updateLayout();
}

void SectionedCollectionView::updateLayout()
{
    int height = 0;
    for (const CollectionSection& section : m_sections) {
        height = placeSection(section, height);
    }
    if (this->height() != height) {
        resize(parentWidget() != nullptr ? parentWidget()->width() : width(), height);
    }
}

/// Returns where the section ends.
int SectionedCollectionView::placeSection(const CollectionSection& section, int top) const
{
    QWidget& header = *section.header;
    int y = top + header.height();
    header.setGeometry(0, top, width(), header.height());
    if (section.items.empty() && section.placeholder != nullptr) {
        const int height = section.placeholder->heightForWidth(width());
        section.placeholder->setGeometry(0, y, width(), height);
        return y + height;
    }
    const auto rowWidth = static_cast<float>(width());
    const float itemWidth = itemWidthInSection(rowWidth, section);
    // In single precision, how many fit in a row may be another number than in double precision.
    float x = 0;
    for (const auto& item : section.items) {
        const int height = item->height();
        item->setGeometry(toPoints(x), y, toPoints(itemWidth), height);
        x += itemWidth;
        if (item == section.items.back() || x + itemWidth > rowWidth) {
            y += height;
            x = 0;
        }
    }
    return y;
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
    if (m_selected.view == nullptr || !m_handlers.didDeselectView) {
        return;
    }
    m_handlers.didDeselectView(*m_selected.view, m_selected.section, m_selected.index);
    m_selected = {};
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
    if (isByKeys && m_isInteractive && m_selected.view == nullptr) {
        markNextForKeys(placeForKey(Qt::Key_Home).view);
    }
    QWidget::focusInEvent(event);
}

void SectionedCollectionView::focusOutEvent(QFocusEvent* event)
{
    markNextForKeys(nullptr);
    QWidget::focusOutEvent(event);
}

void SectionedCollectionView::resizeEvent(QResizeEvent* /*event*/)
{
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
    if (!m_isInteractive || event.button() != Qt::LeftButton) {
        return;
    }
    for (const Place& place : places()) {
        if (!place.view->geometry().contains(event.position().toPoint())) {
            continue;
        }
        if (place.view->unavailable()) {
            break;
        }
        select(place, clickCount);
    }
}

void SectionedCollectionView::select(const Place& place, int clickCount)
{
    if (m_selected.view != nullptr && m_handlers.didDeselectView) {
        m_handlers.didDeselectView(*m_selected.view, m_selected.section, m_selected.index);
    }
    // Who is not told of a selection gets no double clicks either.
    if (!m_handlers.didSelectView) {
        return;
    }
    markNextForKeys(nullptr);
    m_selected = place;
    if (clickCount < kDoubleClick) {
        m_handlers.didSelectView(*place.view, place.section, place.index);
    } else if (m_handlers.didDoubleClickView) {
        m_handlers.didDoubleClickView(*place.view, place.section, place.index);
    }
}

std::vector<SectionedCollectionView::Place> SectionedCollectionView::places() const
{
    std::vector<Place> result;
    int section = 0;
    for (const CollectionSection& shown : m_sections) {
        int index = 0;
        for (const auto& item : shown.items) {
            result.push_back({item.get(), section, index++});
        }
        ++section;
    }
    return result;
}

std::vector<SectionedCollectionView::Place> SectionedCollectionView::openPlaces() const
{
    std::vector<Place> result = places();
    std::erase_if(result, [](const Place& place) { return place.view->unavailable(); });
    return result;
}

SectionedCollectionView::Place SectionedCollectionView::placeForKey(int key) const
{
    const std::vector<Place> open = openPlaces();
    const auto selected = std::ranges::find(open, m_selected.view, &Place::view);
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
    const bool isHeard = m_isInteractive && movesSelection(event->key());
    const Place place = isHeard ? placeForKey(event->key()) : Place();
    if (place.view == nullptr) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (place.view != m_selected.view) {
        select(place, 1);
    }
    if (m_scrollView != nullptr) {
        m_scrollView->ensureWidgetVisible(place.view, 0, 0);
    }
}

} // namespace tessera
