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
    virtual bool disabled() const = 0;
};

} // namespace tessera
