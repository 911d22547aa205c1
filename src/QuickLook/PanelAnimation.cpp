// SPDX-License-Identifier: MIT
#include "QuickLook/PanelAnimation.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessera {

namespace {

constexpr double kSeconds = 0.2;
constexpr int kFrameMs = 16;

double steadySeconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

double between(double from, double to, double share)
{
    return from + (to - from) * share;
}

} // namespace

PanelAnimation::PanelAnimation(std::function<void(const QRectF&)> step)
    : m_step(std::move(step))
    , m_clock(steadySeconds)
{
    m_timer.setInterval(kFrameMs);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(this, &PanelAnimation::advance);
}

void PanelAnimation::start(const QRectF& from, const QRectF& to)
{
    m_from = from;
    m_to = to;
    m_start = m_clock();
    m_timer.start();
    m_step(m_from);
}

void PanelAnimation::stop()
{
    m_timer.stop();
}

void PanelAnimation::advance()
{
    if (!isRunning()) {
        return;
    }
    const double progress = std::clamp((m_clock() - m_start) / kSeconds, 0.0, 1.0);
    if (progress >= 1) {
        m_timer.stop();
        m_step(m_to);
        return;
    }
    const double share = 1 - (1 - progress) * (1 - progress);
    m_step(
        {between(m_from.x(), m_to.x(), share),
         between(m_from.y(), m_to.y(), share),
         between(m_from.width(), m_to.width(), share),
         between(m_from.height(), m_to.height(), share)});
}

} // namespace tessera
