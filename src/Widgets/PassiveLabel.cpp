// SPDX-License-Identifier: MIT
#include "Widgets/PassiveLabel.h"

#include "Widgets/DesktopFont.h"

#include <QPainter>

namespace tessera {

PassiveLabel::PassiveLabel(QWidget* parent)
    : QLabel(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
}

void PassiveLabel::setTextPixels(int pixels)
{
    QFont changed = font();
    changed.setPixelSize(withDesktopFont(pixels));
    setFont(changed);
}

void PassiveLabel::setTextColor(const QColor& color)
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, color);
    setPalette(colors);
}

QColor PassiveLabel::textColor() const
{
    return palette().color(QPalette::WindowText);
}

QSize PassiveLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void PassiveLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(textColor());
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
}

} // namespace tessera
