// SPDX-License-Identifier: MIT
#include "Shell/RoundHeaderView.h"

#include "Shell/GradientPanel.h"
#include "Shell/HomeColors.h"

#include <QPainter>

namespace tessera {

void RoundHeaderView::paintEvent(QPaintEvent* /*event*/)
{
    constexpr double kHeaderRadius = 8;
    const HomeColors colors(palette());
    QPainter painter(this);
    paintGradientPanel(
        painter, rect(), kHeaderRadius, {colors.panelTop, colors.panelBottom, colors.outline});
}

} // namespace tessera
