// SPDX-License-Identifier: MIT
#include "QuickLook/PanelAnimation.h"

#include <utility>

namespace tessera {

namespace {

constexpr double kSeconds = 0.2;

double between(double from, double to, double share)
{
    return from + (to - from) * share;
}

} // namespace

PanelAnimation::PanelAnimation(std::function<void(const QRectF&)> step)
    : m_step(std::move(step))
{
    connect(&m_frames, &FrameClock::frameDue, this, &PanelAnimation::advance);
}

void PanelAnimation::start(const QRectF& from, const QRectF& to)
{
    m_from = from;
    m_to = to;
    m_frames.start();
    m_step(m_from);
}

void PanelAnimation::stop()
{
    m_frames.stop();
}

void PanelAnimation::advance()
{
    if (!isRunning()) {
        return;
    }
    const double progress = m_frames.partOf(kSeconds);
    if (progress >= 1) {
        m_frames.stop();
        m_step(m_to);
        return;
    }
    const double share = easeOut(progress);
    m_step(
        {between(m_from.x(), m_to.x(), share),
         between(m_from.y(), m_to.y(), share),
         between(m_from.width(), m_to.width(), share),
         between(m_from.height(), m_to.height(), share)});
}

} // namespace tessera
