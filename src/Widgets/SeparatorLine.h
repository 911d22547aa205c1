// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tessera {

/// A faint line between two parts of a screen; as long as the layout makes it, one point wide.
class SeparatorLine final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
