// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace tessera::test {

/// What readers with weak eyes need: https://www.w3.org/TR/WCAG21/#contrast-minimum
inline constexpr double kLegible = 4.5;

/// As the same recommendation defines it, in sRGB.
inline double luminance(const QColor& color)
{
    const auto linear = [](float channel) {
        const auto value = static_cast<double>(channel);
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// Of two opaque colours: 1 for the same one, 21 for black and white.
inline double contrast(const QColor& one, const QColor& other)
{
    constexpr double kGlare = 0.05;
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + kGlare) / (darker + kGlare);
}

} // namespace tessera::test
