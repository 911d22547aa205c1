// SPDX-License-Identifier: MIT
#include "Shell/RecentsTableView.h"

#include <QPainter>

namespace tessera {

void RecentsTableView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (model() != nullptr && model()->rowCount(rootIndex()) > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("No scans yet"));
}

} // namespace tessera
