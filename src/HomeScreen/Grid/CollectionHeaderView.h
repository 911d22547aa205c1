// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tessera {

class NonBlockingTextField;

/// The title of a section of the home screen's grid.
class CollectionHeaderView final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    NonBlockingTextField& nameLabel() const;
};

} // namespace tessera
