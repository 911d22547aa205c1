// SPDX-License-Identifier: MIT
#include "ScanScreen/PathLabel.h"

#include <QPainter>

namespace tessera {

void PathLabel::setText(const QString& text)
{
    if (text == m_text) {
        return;
    }
    m_text = text;
    setAccessibleName(text);
    update();
}

QSize PathLabel::sizeHint() const
{
    return {0, fontMetrics().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(
        rect(),
        static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine),
        fontMetrics().elidedText(m_text, Qt::ElideMiddle, width()));
}

} // namespace tessera
