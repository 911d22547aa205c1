// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTableView>

namespace tessera {

/// A table of whole rows, that says something where it has none. Main thread only.
class HistoryTableView final : public QTableView {
    Q_OBJECT

public:
    using QTableView::QTableView;

    /// What is said while there are no rows.
    void setPlaceholder(const QString& text);

signals:
    /// Return was pressed on a selected row, or one was double-clicked.
    void chosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QString m_placeholder;
};

} // namespace tessera
