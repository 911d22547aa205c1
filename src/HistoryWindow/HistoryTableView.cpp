// SPDX-License-Identifier: MIT
#include "HistoryWindow/HistoryTableView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tessera {

void HistoryTableView::setPlaceholder(const QString& text)
{
    m_placeholder = text;
    viewport()->update();
}

void HistoryTableView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (model() != nullptr && model()->rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

void HistoryTableView::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && selectionModel()->hasSelection()) {
        emit chosen();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void HistoryTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        emit chosen();
    }
}

} // namespace tessera
