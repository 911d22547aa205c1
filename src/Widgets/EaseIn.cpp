// SPDX-License-Identifier: MIT
#include "Widgets/EaseIn.h"

namespace tessera {

namespace {

constexpr double kFirstX = 0.42;
constexpr double kFirstY = 0;
constexpr double kSecond = 1; ///< x and y of the second control point

/// Halvings after which a double has no closer value left.
constexpr int kHalvings = 52;

/// A coordinate of the curve at `at`, from that of its two control points.
double bezier(double first, double second, double at)
{
    const double left = 1 - at;
    return 3 * first * at * left * left + 3 * second * at * at * left + at * at * at;
}

} // namespace

double easeIn(double timePassed)
{
    if (timePassed <= 0 || timePassed >= 1) {
        return timePassed <= 0 ? 0 : 1;
    }
    // Halving rather than Newton's method: the curve's x stands still at its end.
    double low = 0;
    double high = 1;
    for (int halving = 0; halving < kHalvings; ++halving) {
        const double middle = (low + high) / 2;
        (bezier(kFirstX, kSecond, middle) < timePassed ? low : high) = middle;
    }
    return bezier(kFirstY, kSecond, (low + high) / 2);
}

} // namespace tessera
