// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QPainter;
class QRect;

namespace tessera {

/// The colours of a panel: a gradient from its top to its bottom, and an outline.
struct GradientColors {
    const QColor& top;
    const QColor& bottom;
    const QColor& outline;
};

/// A rounded panel that fills the frame, its outline one point wide just inside.
void paintGradientPanel(
    QPainter& painter, const QRect& frame, double radius, const GradientColors& colors);

} // namespace tessera
