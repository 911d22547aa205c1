// SPDX-License-Identifier: MIT
#include "Widgets/SeparatorLine.h"

#include <QPainter>

namespace tessera {

void SeparatorLine::paintEvent(QPaintEvent* /*event*/)
{
    constexpr float kFaint = 0.2F;
    QColor color = palette().color(QPalette::WindowText);
    color.setAlphaF(kFaint);
    QPainter(this).fillRect(rect(), color);
}

} // namespace tessera
