// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tessera {

/// A name on one line, in plain text: what there is no room for is left out of its middle, and in
/// the tooltip. Main thread only.
class NameLabel final : public QLabel {
    Q_OBJECT

public:
    explicit NameLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
