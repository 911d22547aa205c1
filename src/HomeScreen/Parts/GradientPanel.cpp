// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/GradientPanel.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace tessera {

void paintGradientPanel(
    QPainter& painter, const QRect& frame, double radius, const GradientColors& colors)
{
    constexpr double kOutlineInset = 0.5;
    const QRectF bounds = frame;
    QLinearGradient gradient(bounds.topLeft(), bounds.bottomLeft());
    gradient.setColorAt(0, colors.top);
    gradient.setColorAt(1, colors.bottom);
    QPainterPath panel;
    panel.addRoundedRect(bounds, radius, radius);
    QPainterPath outline;
    outline.addRoundedRect(
        bounds.adjusted(kOutlineInset, kOutlineInset, -kOutlineInset, -kOutlineInset),
        radius,
        radius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(panel, gradient);
    // A pen of one point would be drawn as a hairline, which is too thin in the bends.
    QPainterPathStroker outliner;
    outliner.setWidth(1);
    painter.fillPath(outliner.createStroke(outline), colors.outline);
}

} // namespace tessera
