// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RecentsTableView.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr int kPlaceholderMargin = 12;

} // namespace

QString RecentsTableView::placeholder()
{
    return tr("Disks and folders that you scan are listed here, to be scanned again.");
}

void RecentsTableView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (model() != nullptr && model()->rowCount(rootIndex()) > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = viewport()->rect().adjusted(
        kPlaceholderMargin, kPlaceholderMargin, -kPlaceholderMargin, -kPlaceholderMargin);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, placeholder());
}

void RecentsTableView::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    // Qt does so only while no row has ever been the current one.
    const bool isByMouse = event->reason() == Qt::MouseFocusReason;
    if (!isByMouse && !currentIndex().isValid() && model() != nullptr) {
        selectionModel()->setCurrentIndex(model()->index(0, 0), QItemSelectionModel::NoUpdate);
    }
}

void RecentsTableView::keyPressEvent(QKeyEvent* event)
{
    constexpr std::array kArrows{Qt::Key_Up, Qt::Key_Down};
    const bool isArrow = std::ranges::find(kArrows, event->key()) != kArrows.end();
    if (event->key() == Qt::Key_Escape) {
        // The list would look for a name that begins with it.
        event->ignore();
        return;
    }
    const QModelIndex focused = currentIndex();
    // Qt would move on from the row that has the focus, although it was not selected.
    if (isArrow && focused.isValid() && !selectionModel()->hasSelection()) {
        setCurrentIndex(focused);
        return;
    }
    QListView::keyPressEvent(event);
}

void RecentsTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        QListView::mouseDoubleClickEvent(event);
    } else {
        mousePressEvent(event);
    }
}

} // namespace tessera
