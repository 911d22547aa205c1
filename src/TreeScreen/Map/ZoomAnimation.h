// SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/FrameClock.h"

#include <QImage>
#include <QObject>
#include <QTransform>

class QPainter;

namespace tessera {

/// One of the two pictures of a zoom, and what it changes from and to. It is an opaque picture of
/// the whole view; transforms are in points with y downward, opacities 0 to 1.
struct ZoomLayer {
    QImage picture;
    QTransform transformFrom;
    QTransform transformTo;
    double opacityFrom = 0;
    double opacityTo = 0;
};

/// Moves one picture over another on black, both by the same slowly beginning clock. The first
/// frame shows what the layers begin with, and the last one stays until the animation goes away.
/// Main thread only.
class ZoomAnimation final : public QObject {
    Q_OBJECT

public:
    static constexpr double kSeconds = 0.7;

    ZoomAnimation(ZoomLayer lower, ZoomLayer upper, FrameClock::Seconds now);
    ~ZoomAnimation() override;

    /// Part of the way that the layers have gone by now, 0 to 1.
    double progress() const;

    /// The picture at the current progress; `painter` is the view's, whose size the layers have.
    void paint(QPainter& painter) const;

signals:
    /// It is time to paint the next picture.
    void frameDue();
    /// The whole way is gone. Emitted once, from the event loop.
    void finished();
    /// For the animation itself: finished() follows.
    void wayGone(QPrivateSignal);

private:
    void advance();

    ZoomLayer m_lower;
    ZoomLayer m_upper;
    FrameClock m_frames;
};

} // namespace tessera
