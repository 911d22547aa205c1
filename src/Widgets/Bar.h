// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace tessera {

/// A small horizontal gauge: a grey capsule-shaped groove with a coloured fill. The setters only
/// store; whoever changes a bar that is on the screen calls update(). Whoever holds a bar gives it
/// its size.
class Bar final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The fraction of the groove that is filled, 0.0 to 1.0 despite the name. Not clamped: more
    /// draws the fill beyond the groove.
    double percentFilled() const { return m_percentFilled; }
    void setPercentFilled(double fraction) { m_percentFilled = fraction; }

    /// The colours of the fill's upper and lower edge; an invalid colour, as at first, stands for
    /// the usual green. Painted opaque whatever their alpha.
    const QColor& lightColor() const { return m_lightColor; }
    void setLightColor(const QColor& color) { m_lightColor = color; }
    const QColor& darkColor() const { return m_darkColor; }
    void setDarkColor(const QColor& color) { m_darkColor = color; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGroove(QPainter& painter) const;
    void paintFill(QPainter& painter) const;
    double grooveRadius() const;
    /// From the upper to the lower edge of the groove, for the groove and the fill alike.
    QLinearGradient gradient(const QColor& top, const QColor& bottom) const;

    double m_percentFilled = 0.0;
    QColor m_lightColor;
    QColor m_darkColor;
};

} // namespace tessera
