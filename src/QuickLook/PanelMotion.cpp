// SPDX-License-Identifier: MIT
#include "QuickLook/PanelMotion.h"

#include "Desktop/MotionPreference.h"

#include <QGuiApplication>

namespace tessera {

namespace {

/// A Wayland client neither knows nor sets where on the screen its windows are.
bool canPlaceWindows()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

PanelMotion::PanelMotion(const MotionPreference* preference)
    : m_preference(preference)
    , m_animation([this](const QRectF& frame) { step(frame); })
{
}

void PanelMotion::start(const QRectF& from, const QRectF& to)
{
    if (!canMove(from) || !canMove(to)) {
        m_animation.stop();
        emit arrived();
        return;
    }
    emit started();
    m_animation.start(from, to);
}

bool PanelMotion::canMove(const QRectF& place) const
{
    return !place.isEmpty() && canPlaceWindows()
        && (m_preference == nullptr || !m_preference->reducesMotion());
}

void PanelMotion::step(const QRectF& frame)
{
    if (m_animation.isRunning()) {
        emit moved(frame.toAlignedRect());
    } else {
        emit arrived();
    }
}

} // namespace tessera
