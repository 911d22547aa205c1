// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/HoverButton.h"

#include "HomeScreen/Parts/GradientPanel.h"
#include "HomeScreen/Parts/HomeColors.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "Widgets/Images.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace tessera {

namespace {

constexpr double kRadius = 5;
/// In every button alike, however large it is.
constexpr QRect kArrowFrame{246, 20, 20, 20};
constexpr int kIconLeft = 16;
constexpr int kTextGap = 12;
constexpr int kTextRight = 240;
constexpr int kFocusInset = 3;
/// A pressed button is a shade darker.
constexpr int kPressedFactor = 108;

} // namespace

HoverButton::HoverButton(QWidget* parent)
    : QPushButton(parent)
{
    // Moving in and out repaints it.
    setAttribute(Qt::WA_Hover);
}

void HoverButton::setShowsBorderOnlyWhileMouseInside(bool on)
{
    m_showsBorderOnlyWhileMouseInside = on;
    update();
}

void HoverButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const bool isMouseInside = isEnabled() && underMouse();
    if (!m_showsBorderOnlyWhileMouseInside || isMouseInside) {
        drawBezel(painter);
    }
    drawInterior(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void HoverButton::drawBezel(QPainter& painter) const
{
    HomeColors colors(palette());
    if (isDown()) {
        colors.buttonTop = colors.buttonTop.darker(kPressedFactor);
        colors.buttonBottom = colors.buttonBottom.darker(kPressedFactor);
    }
    paintGradientPanel(
        painter, rect(), kRadius, {colors.buttonTop, colors.buttonBottom, colors.outline});
    imageNamed("gobutton").paint(&painter, kArrowFrame);
}

void HoverButton::drawInterior(QPainter& painter) const
{
    const QSize size = iconSize();
    const QRect iconFrame(QPoint(kIconLeft, (height() - size.height()) / 2), size);
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    const QPixmap picture = pixmapIn(size, icon(), devicePixelRatioF(), mode);
    style()->drawItemPixmap(&painter, iconFrame, Qt::AlignCenter, picture);
    const int left = iconFrame.right() + kTextGap;
    const QRect textFrame(left, 0, kTextRight - left, height());
    const int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic;
    style()->drawItemText(
        &painter, textFrame, flags, palette(), isEnabled(), text(), QPalette::ButtonText);
}

} // namespace tessera
