// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RoundHeaderView.h"

#include "HomeScreen/Parts/GradientPanel.h"
#include "HomeScreen/Parts/HomeColors.h"

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
