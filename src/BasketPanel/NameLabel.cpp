// SPDX-License-Identifier: MIT
#include "BasketPanel/NameLabel.h"

#include "Base/DisplayText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace tessera {

NameLabel::NameLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize NameLabel::minimumSizeHint() const
{
    return {1, QLabel::minimumSizeHint().height()};
}

bool NameLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool isWhole = fontMetrics().horizontalAdvance(text()) <= width();
        QToolTip::showText(
            static_cast<QHelpEvent*>(event)->globalPos(),
            isWhole ? QString() : plainTooltip(text()),
            this);
        return true;
    }
    return QLabel::event(event);
}

void NameLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(
        rect(),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

} // namespace tessera
