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

PathComponentButton::PathComponentButton(CenteredPathComponentCell cell, QWidget* parent)
    : QAbstractButton(parent)
    , m_cell(std::move(cell))
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setCell(m_cell);
}

void PathComponentButton::setCell(CenteredPathComponentCell cell)
{
    m_cell = std::move(cell);
    // The button's own text would take an ampersand for a shortcut.
    setAccessibleName(m_cell.title());
    setToolTip(plainTooltip(m_cell.title()));
    update();
}

QSize PathComponentButton::sizeHint() const
{
    const QSizeF size = m_cell.cellSize();
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
    const double cellHeight = height() - kChevronOverhang;
    m_cell.drawInteriorWithFrame(
        {kLead, 0, static_cast<double>(width()), cellHeight}, painter, palette());
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
