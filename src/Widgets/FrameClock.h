// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace tessera {

/// What an animation goes by: says how much time has passed since its start, and about 60 times a
/// second that another picture is due. Main thread only.
class FrameClock final : public QObject {
    Q_OBJECT

public:
    static constexpr int kFrameMilliseconds = 16;

    /// Seconds that never go back.
    using Seconds = std::function<double()>;
    /// The system's.
    static double steadySeconds();

    explicit FrameClock(Seconds now = steadySeconds);

    /// Goes by another time from the next start on.
    void setTime(Seconds now);

    /// Starts over, and lets frames be due until stop(). The first one is due after that time, 0
    /// being as soon as the event loop runs.
    void start(int everyMilliseconds = kFrameMilliseconds);
    void stop() { m_frames.stop(); }
    bool isRunning() const { return m_frames.isActive(); }

    /// Since the last start, whether or not it was stopped meanwhile; in seconds.
    double passed() const;
    /// The part of that many seconds that has passed, 0 to 1.
    double partOf(double seconds) const;

signals:
    void frameDue();

private:
    Seconds m_now;
    QTimer m_frames;
    double m_begin = 0;
};

/// The timings of motions: each takes the part of the time that has passed, 0 to 1, and gives the
/// part of the way.
///
/// Slow at the beginning: the cubic Bezier curve from (0, 0) to (1, 1) with the control points
/// (0.42, 0) and (1, 1). Stays at the ends outside of the time.
double easeIn(double timePassed);
/// Slow at both ends: half a wave of the cosine.
double easeInOut(double timePassed);
/// Fast at first and slowing down: a parabola.
double easeOut(double timePassed);

} // namespace tessera
