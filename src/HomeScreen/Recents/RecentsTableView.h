// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace tessera {

/// The list of recent scans; when there is none it says what it would hold. While none is selected
/// the first arrow selects the one with the keyboard's focus, which is the first one at first.
/// Double clicks are those of the left button.
class RecentsTableView final : public QListView {
    Q_OBJECT

public:
    using QListView::QListView;

    /// What an empty list says.
    static QString placeholder();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace tessera
