// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace tessera {

/// The list of recent scans; it says so when there is none. While none is selected the first arrow
/// selects the one with the keyboard's focus, which is the first one at first. Double clicks are
/// those of the left button.
class RecentsTableView final : public QListView {
    Q_OBJECT

public:
    using QListView::QListView;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace tessera
