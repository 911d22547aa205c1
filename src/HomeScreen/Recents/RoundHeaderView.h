// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tessera {

/// A rounded panel that other views are laid over.
class RoundHeaderView final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
