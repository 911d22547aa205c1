// SPDX-License-Identifier: MIT
#include "MainWindow/ScanPanelSlide.h"

#include "Desktop/MotionPreference.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tessera {

namespace {

constexpr int kFrameMilliseconds = 16;

/// Half a wave of the cosine.
double easeInOut(double timePassed)
{
    return (1 - std::cos(timePassed * std::numbers::pi)) / 2;
}

} // namespace

ScanPanelSlide::ScanPanelSlide(const MotionPreference& motion, Clock clock)
    : m_motion(motion)
    , m_clock(std::move(clock))
{
    m_frames.setTimerType(Qt::PreciseTimer);
    connect(&m_frames, &QTimer::timeout, this, &ScanPanelSlide::advance);
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
    m_begin = m_clock();
    m_seconds = isStill ? 0 : kSeconds;
    m_frames.start(isStill ? 0 : kFrameMilliseconds);
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
    if (!m_frames.isActive()) {
        return;
    }
    const double passed = m_clock() - m_begin;
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
