// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/PathComponentButton.h"

#include "Base/DisplayText.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace tessera {

namespace {

constexpr double kHoverShare = 0.08;
constexpr double kPressShare = 0.16;
constexpr double kFeedbackRadius = 4.0;
constexpr double kHalfLine = 0.5;
constexpr int kChevronOverhang = 1;

} // namespace

PathComponentButton::PathComponentButton(PathComponent component, QWidget* parent)
    : QAbstractButton(parent)
    , m_component(std::move(component))
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setComponent(m_component);
}

void PathComponentButton::setComponent(PathComponent component)
{
    m_component = std::move(component);
    // The button's own text would take an ampersand for a shortcut.
    setAccessibleName(m_component.title());
    setToolTip(plainTooltip(m_component.title()));
    update();
}

QSize PathComponentButton::sizeHint() const
{
    const QSizeF size = m_component.naturalSize();
    return {
        static_cast<int>(std::ceil(size.width())),
        static_cast<int>(std::ceil(size.height())) + kChevronOverhang};
}

void PathComponentButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Space:
        QAbstractButton::keyPressEvent(event);
        break;
    default:
        event->ignore();
    }
}

void PathComponentButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFeedback(painter);
    const double componentHeight = height() - kChevronOverhang;
    m_component.draw({kLead, 0, static_cast<double>(width()), componentHeight}, painter, palette());
}

void PathComponentButton::paintFeedback(QPainter& painter) const
{
    const QRectF area(rect());
    if (isDown() || underMouse()) {
        QColor ground = palette().color(QPalette::WindowText);
        ground.setAlphaF(static_cast<float>(isDown() ? kPressShare : kHoverShare));
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(area, kFeedbackRadius, kFeedbackRadius);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(
            area.adjusted(kHalfLine, kHalfLine, -kHalfLine, -kHalfLine),
            kFeedbackRadius,
            kFeedbackRadius);
    }
}

} // namespace tessera
