// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace tessera {

/// The list of recent scans; it says so when there is none.
class RecentsTableView final : public QListView {
    Q_OBJECT

public:
    using QListView::QListView;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
