// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

#include <memory>
#include <vector>

namespace tessera {

class CollectionItemView;
class SectionedCollectionViewDataSource;
struct SectionedCollectionViewDelegate;

/// A grid of item views in sections, one below the other: a header, then the section's items from
/// left to right in columns of equal width, wrapped into rows. Draws nothing itself; the items
/// show which of them is selected. Its width is that of the view around it and its height what the
/// content takes, so that a scroll area around it scrolls over all of it.
class SectionedCollectionView final : public QWidget {
    Q_OBJECT

public:
    /// What is laid out, in the order in which it is shown.
    struct LayoutMetric {
        enum class Type { Header, View };

        Type type = Type::Header;
        std::unique_ptr<QWidget> view;
        int count = 0; ///< of a header: how many items its section has
        float minWidth = 0; ///< of a header: of its section's items
        float maxWidth = 0;
        bool final = false; ///< of an item: it is the last of its section
    };

    explicit SectionedCollectionView(QWidget* parent = nullptr);
    ~SectionedCollectionView() override;

    /// Neither is owned; null for none. A new data source shows with the next reloadData().
    void setDataSource(SectionedCollectionViewDataSource* dataSource) { m_dataSource = dataSource; }
    void setDelegate(const SectionedCollectionViewDelegate* delegate) { m_delegate = delegate; }

    const std::vector<LayoutMetric>& layoutMetrics() const { return m_layoutMetrics; }

    CollectionItemView* selectedView() const { return m_selectedView; }
    int selectedSection() const { return m_selectedSection; } ///< -1: nothing is selected
    int selectedIndex() const { return m_selectedIndex; } ///< -1: nothing is selected

    /// The scroll area around it, where items selected by a key are scrolled into sight.
    QScrollArea* scrollView() const { return m_scrollView; }
    void setScrollView(QScrollArea* scrollView) { m_scrollView = scrollView; }

    /// Whether clicks and keys are heard. Not QWidget's own flag: the item views are not told.
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }

    /// Makes all views afresh. Nothing is selected then, and the delegate is not told so.
    void reloadData();

    /// Places the views in the present width.
    void updateLayout();

    /// Selects an item as a click on it would; nothing when there is none or it is disabled.
    void selectItem(int section, int index);

    /// Tells the delegate and then forgets the selection; keeps it when the delegate does not
    /// answer that message.
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
    /// Where an item stands in the data source.
    struct Place {
        CollectionItemView* view = nullptr;
        int section = -1;
        int index = -1;
    };

    void mouseDown(QMouseEvent& event, int clickCount);
    void addSection(int section);
    void addView(std::unique_ptr<QWidget> view, LayoutMetric metric);
    void clearSelection();
    void markNextForKeys(CollectionItemView* view);
    void select(const Place& place, int clickCount);
    std::vector<Place> places() const;
    /// Those that can be clicked.
    std::vector<Place> openPlaces() const;
    Place placeForKey(int key) const;
    static Place nearestInNextRow(const std::vector<Place>& open, const Place& from, int downward);

    SectionedCollectionViewDataSource* m_dataSource = nullptr;
    const SectionedCollectionViewDelegate* m_delegate = nullptr;
    std::vector<LayoutMetric> m_layoutMetrics;
    std::unique_ptr<QWidget> m_rightEdge;
    CollectionItemView* m_selectedView = nullptr;
    QPointer<CollectionItemView> m_nextForKeys;
    int m_selectedSection = -1;
    int m_selectedIndex = -1;
    QPointer<QScrollArea> m_scrollView;
    bool m_enabled = true;
};

} // namespace tessera
