// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/PanelAnimation.h"

#include <QObject>
#include <QRect>

namespace tessera {

class MotionPreference;

/// Takes the preview panel from one place to another: by an animation where the user wants motion
/// and windows can be placed, else at once. Main thread only.
class PanelMotion final : public QObject {
    Q_OBJECT

public:
    /// Not owned; without one it moves.
    explicit PanelMotion(const MotionPreference* preference);

    /// Where either place is empty, nothing can be seen of the way: it is there at once.
    void start(const QRectF& from, const QRectF& to);

    /// Leads a running motion elsewhere without starting over.
    void retarget(const QRectF& to) { m_animation.retarget(to); }

    /// Stays where it is and says nothing more.
    void stop() { m_animation.stop(); }

    bool isRunning() const { return m_animation.isRunning(); }
    PanelAnimation& animation() { return m_animation; }

signals:
    /// There is a way to go; its steps follow.
    void started();
    void moved(const QRect& frame);
    /// Without a started() before where it is there at once.
    void arrived();

private:
    bool canMove(const QRectF& place) const;
    void step(const QRectF& frame);

    const MotionPreference* m_preference;
    PanelAnimation m_animation;
};

} // namespace tessera
