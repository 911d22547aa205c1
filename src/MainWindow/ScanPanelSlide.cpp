// SPDX-License-Identifier: MIT
#include "MainWindow/ScanPanelSlide.h"

#include "Desktop/MotionPreference.h"

#include <algorithm>
#include <utility>

namespace tessera {

ScanPanelSlide::ScanPanelSlide(const MotionPreference& motion, FrameClock::Seconds now)
    : m_motion(motion)
    , m_frames(std::move(now))
{
    connect(&m_frames, &FrameClock::frameDue, this, &ScanPanelSlide::advance);
}

ScanPanelSlide::~ScanPanelSlide() = default;

void ScanPanelSlide::slideIn(double panelHeight)
{
    m_isSlidingOut = false;
    start(ScanPanelPlace::slidIn(panelHeight));
}

void ScanPanelSlide::slideOut()
{
    m_isSlidingOut = true;
    start(m_place.slidOut());
}

void ScanPanelSlide::reset()
{
    m_frames.stop();
    m_place = ScanPanelPlace::before();
}

void ScanPanelSlide::start(const ScanPanelPlace& to)
{
    const bool isStill = m_motion.reducesMotion();
    m_from = m_place;
    m_to = to;
    m_seconds = isStill ? 0 : kSeconds;
    m_frames.start(isStill ? 0 : FrameClock::kFrameMilliseconds);
    if (isStill) {
        moveTo(m_to);
    }
}

void ScanPanelSlide::moveTo(const ScanPanelPlace& place)
{
    if (m_place != place) {
        m_place = place;
        emit moved();
    }
}

void ScanPanelSlide::advance()
{
    if (!m_frames.isRunning()) {
        return;
    }
    const double passed = m_frames.passed();
    const double share = m_seconds > 0 ? std::clamp(passed / m_seconds, 0.0, 1.0) : 1;
    moveTo(share < 1 ? m_from.toward(m_to, easeInOut(share)) : m_to);
    const double end = m_isSlidingOut && m_seconds > 0 ? kCleanUpSeconds : m_seconds;
    if (passed < end) {
        return;
    }
    m_frames.stop();
    if (m_isSlidingOut) {
        emit cleanUpDue();
    }
}

} // namespace tessera
