// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tessera {

/// One item of a SectionedCollectionView.
class CollectionItemView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Whether clicks on the item do nothing.
    virtual bool unavailable() const = 0;

    /// Has the item show whether it is what the user has chosen.
    virtual void setSelected(bool selected) = 0;

    /// Whether a key would select this item first, which shows a user of the keyboard where it is
    /// while nothing is selected.
    bool isNextForKeys() const { return m_isNextForKeys; }
    void setNextForKeys(bool isNext)
    {
        m_isNextForKeys = isNext;
        update();
    }

private:
    bool m_isNextForKeys = false;
};

} // namespace tessera
