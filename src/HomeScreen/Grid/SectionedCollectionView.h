// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Grid/CollectionSection.h"

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

namespace tessera {

/// A grid of item views in sections, one below the other: a header, then the section's items from
/// left to right in columns of equal width, wrapped into rows. Draws nothing itself; the items
/// show which of them is selected. Its width is that of the view around it and its height what the
/// content takes, so that a scroll area around it scrolls over all of it.
class SectionedCollectionView final : public QWidget {
    Q_OBJECT

public:
    using Handler = std::function<void(CollectionItemView& item, int section, int index)>;

    /// What the user's choices lead to; sections and indices count from 0. Each may be left empty.
    struct Handlers {
        Handler didSelectView; ///< a single click; without it nothing can be selected
        /// The selected item is selected no more, or clicked again.
        Handler didDeselectView;
        Handler didDoubleClickView; ///< a click with a click count of 2 or more
    };

    explicit SectionedCollectionView(QWidget* parent = nullptr);
    ~SectionedCollectionView() override;

    /// Shows these sections in the place of those before. Nothing is selected then, and no handler
    /// is told so.
    void setSections(std::vector<CollectionSection> sections);
    const std::vector<CollectionSection>& sections() const { return m_sections; }

    void setHandlers(Handlers handlers) { m_handlers = std::move(handlers); }

    CollectionItemView* selectedView() const { return m_selected.view; }
    int selectedSection() const { return m_selected.section; } ///< -1: nothing is selected
    int selectedIndex() const { return m_selected.index; } ///< -1: nothing is selected

    /// The scroll area around it, where items selected by a key are scrolled into sight.
    void setScrollView(QScrollArea* scrollView) { m_scrollView = scrollView; }

    /// Whether clicks and keys are heard. The item views look the same when they are not.
    bool isInteractive() const { return m_isInteractive; }
    void setInteractive(bool isInteractive) { m_isInteractive = isInteractive; }

    /// Selects an item as a click on it would; nothing when it is missing or unavailable.
    void selectItem(int section, int index);

    /// Forgets the selection after telling so; keeps it where there is no handler to tell.
    void deselectAll();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// An item and where it stands.
    struct Place {
        CollectionItemView* view = nullptr;
        int section = -1;
        int index = -1;
    };

    void mouseDown(QMouseEvent& event, int clickCount);
    /// Places the views in the present width.
    void updateLayout();
    int placeSection(const CollectionSection& section, int top) const;
    void markNextForKeys(CollectionItemView* view);
    void select(const Place& place, int clickCount);
    std::vector<Place> places() const;
    /// Those that can be clicked.
    std::vector<Place> openPlaces() const;
    Place placeForKey(int key) const;
    static Place nearestInNextRow(const std::vector<Place>& open, const Place& from, int downward);

    std::vector<CollectionSection> m_sections;
    Handlers m_handlers;
    Place m_selected;
    QPointer<CollectionItemView> m_nextForKeys;
    QPointer<QScrollArea> m_scrollView;
    bool m_isInteractive = true;
};

} // namespace tessera
