// SPDX-License-Identifier: MIT
#include "Widgets/FrameClock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>
#include <utility>

namespace tessera {

namespace {

/// The control points of the slowly beginning curve.
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

FrameClock::FrameClock(Seconds now)
    : m_now(std::move(now))
{
    m_frames.setTimerType(Qt::PreciseTimer);
    connect(&m_frames, &QTimer::timeout, this, &FrameClock::frameDue);
}

double FrameClock::steadySeconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

void FrameClock::setTime(Seconds now)
{
    m_now = std::move(now);
}

void FrameClock::start(int everyMilliseconds)
{
    m_begin = m_now();
    m_frames.start(everyMilliseconds);
}

double FrameClock::passed() const
{
    return m_now() - m_begin;
}

double FrameClock::partOf(double seconds) const
{
    return std::clamp(passed() / seconds, 0.0, 1.0);
}

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

double easeInOut(double timePassed)
{
    return (1 - std::cos(timePassed * std::numbers::pi)) / 2;
}

double easeOut(double timePassed)
{
    return 1 - (1 - timePassed) * (1 - timePassed);
}

} // namespace tessera
