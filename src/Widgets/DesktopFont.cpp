// SPDX-License-Identifier: MIT
#include "Widgets/DesktopFont.h"

#include <QApplication>
#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr double kUsualPixels = 13;
constexpr double kMostWidening = 1.4;

} // namespace

double desktopFontScale()
{
    return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / kUsualPixels);
}

int withDesktopFont(int points)
{
    return static_cast<int>(std::lround(points * desktopFontScale()));
}

int widthWithDesktopFont(int points)
{
    const double widening = std::min((1 + desktopFontScale()) / 2, kMostWidening);
    return static_cast<int>(std::lround(points * widening));
}

} // namespace tessera
