// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow/ScanPanelPlace.h"
#include "Widgets/FrameClock.h"

#include <QObject>

namespace tessera {

class MotionPreference;

/// Slides the scan panel in and out. Slow at both ends of its half second. Main thread only.
class ScanPanelSlide final : public QObject {
    Q_OBJECT

public:
    static constexpr double kSeconds = 0.5;
    /// From the beginning of sliding out until nothing is left of it.
    static constexpr double kCleanUpSeconds = 0.55;

    /// `motion` must outlive it. Where it says so nothing slides, and the clean-up follows as soon
    /// as the event loop runs.
    ScanPanelSlide(const MotionPreference& motion, FrameClock::Seconds now);
    ~ScanPanelSlide() override;

    const ScanPanelPlace& place() const { return m_place; }

    /// From just below the area when there is no panel yet, else from where it is.
    void slideIn(double panelHeight = ScanPanelPlace::kPanelHeight);
    void slideOut();
    /// Stops, without a word, and forgets the panel.
    void reset();

    /// Takes the step that the clock asks for; a timer calls this about 60 times a second.
    void advance();

signals:
    /// The place has changed.
    void moved();
    /// The panel has slid out.
    void cleanUpDue();

private:
    void start(const ScanPanelPlace& to);
    void moveTo(const ScanPanelPlace& place);

    const MotionPreference& m_motion;
    FrameClock m_frames;
    double m_seconds = kSeconds; ///< 0 when nothing is to slide
    bool m_isSlidingOut = false;
    ScanPanelPlace m_from;
    ScanPanelPlace m_to;
    ScanPanelPlace m_place;
};

} // namespace tessera
