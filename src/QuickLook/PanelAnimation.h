// SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/FrameClock.h"

#include <QObject>
#include <QRectF>

#include <functional>
#include <utility>

namespace tessera {

/// Moves a rectangle to another in 0.2 seconds, fast at first and slowing down. Main thread only.
class PanelAnimation final : public QObject {
public:
    /// `step` is called with the rectangle on its way, and a last time, with the rectangle where
    /// it was to go, once isRunning() is false.
    explicit PanelAnimation(std::function<void(const QRectF&)> step);

    /// The time in seconds; the system's steady clock if nothing else is set.
    void setClock(FrameClock::Seconds now) { m_frames.setTime(std::move(now)); }

    void start(const QRectF& from, const QRectF& to);

    /// Leads a running animation elsewhere without starting over.
    void retarget(const QRectF& to) { m_to = to; }

    void stop();
    bool isRunning() const { return m_frames.isRunning(); }

    /// Takes the step that the clock asks for; a timer calls this about 60 times a second.
    void advance();

private:
    std::function<void(const QRectF&)> m_step;
    FrameClock m_frames;
    QRectF m_from;
    QRectF m_to;
};

} // namespace tessera
