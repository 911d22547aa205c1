// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

#include <algorithm>
#include <cstdlib>

namespace tessera::test {

inline bool isLike(QRgb color, QRgb other)
{
    constexpr int kTolerance = 3;
    return std::abs(qRed(color) - qRed(other)) <= kTolerance
        && std::abs(qGreen(color) - qGreen(other)) <= kTolerance
        && std::abs(qBlue(color) - qBlue(other)) <= kTolerance;
}

/// Pages, rims and the ground have no hue; folders have.
inline bool hasHue(QRgb color)
{
    constexpr int kLeastSpread = 30;
    const auto [least, most] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
    return most - least >= kLeastSpread;
}

} // namespace tessera::test
