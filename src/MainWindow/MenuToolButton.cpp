// SPDX-License-Identifier: MIT
#include "MainWindow/MenuToolButton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace tessera {

namespace {

// Points that the arrow takes at the button's trailing edge.
constexpr int kArrowRoom = 12;
constexpr int kArrowSide = 8;

} // namespace

MenuToolButton::MenuToolButton(QWidget* parent)
    : QToolButton(parent)
{
    setPopupMode(QToolButton::InstantPopup);
}

QSize MenuToolButton::sizeHint() const
{
    return QToolButton::sizeHint() + QSize(kArrowRoom, 0);
}

void MenuToolButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionToolButton::HasMenu;
    const QIcon icon = option.icon;
    option.icon = {};
    option.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const QRect whole = rect();
    const QRect iconRect
        = QStyle::visualRect(layoutDirection(), whole, whole.adjusted(0, 0, -kArrowRoom, 0));
    icon.paint(
        &painter,
        QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, option.iconSize, iconRect),
        Qt::AlignCenter,
        isEnabled() ? QIcon::Normal : QIcon::Disabled);

    const QRect arrowRect = QStyle::visualRect(
        layoutDirection(), whole, whole.adjusted(whole.width() - kArrowRoom - 2, 0, -2, 0));
    option.rect = QStyle::alignedRect(
        layoutDirection(), Qt::AlignCenter, {kArrowSide, kArrowSide}, arrowRect);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);
}

} // namespace tessera
