// SPDX-License-Identifier: MIT
#include "TreeScreen/Map/ZoomAnimation.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace tessera {

namespace {

QTransform between(const QTransform& from, const QTransform& to, double progress)
{
    const auto mix = [progress](double a, double b) { return std::lerp(a, b, progress); };
    return {
        mix(from.m11(), to.m11()),
        mix(from.m12(), to.m12()),
        mix(from.m21(), to.m21()),
        mix(from.m22(), to.m22()),
        mix(from.dx(), to.dx()),
        mix(from.dy(), to.dy())};
}

void paintLayer(QPainter& painter, const ZoomLayer& layer, double progress)
{
    const double opacity = std::lerp(layer.opacityFrom, layer.opacityTo, progress);
    if (opacity <= 0) {
        return;
    }
    painter.save();
    // Besides looking better, it is quicker: Qt has vector code for this way of scaling alone, and
    // spreads it over several threads.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setTransform(between(layer.transformFrom, layer.transformTo, progress), true);
    painter.setOpacity(opacity);
    painter.drawImage(QPointF(0, 0), layer.picture);
    painter.restore();
}

} // namespace

ZoomAnimation::ZoomAnimation(ZoomLayer lower, ZoomLayer upper, FrameClock::Seconds now)
    : m_lower(std::move(lower))
    , m_upper(std::move(upper))
    , m_frames(std::move(now))
{
    connect(&m_frames, &FrameClock::frameDue, this, &ZoomAnimation::advance);
    // Whoever hears of the end drops the animation: not from within the timer's own function.
    connect(this, &ZoomAnimation::wayGone, this, &ZoomAnimation::finished, Qt::QueuedConnection);
    m_frames.start();
}

ZoomAnimation::~ZoomAnimation() = default;

double ZoomAnimation::progress() const
{
    return easeIn(m_frames.partOf(kSeconds));
}

void ZoomAnimation::paint(QPainter& painter) const
{
    const double now = progress();
    painter.fillRect(painter.viewport(), Qt::black);
    paintLayer(painter, m_lower, now);
    paintLayer(painter, m_upper, now);
}

void ZoomAnimation::advance()
{
    if (m_frames.passed() < kSeconds) {
        emit frameDue();
        return;
    }
    m_frames.stop();
    emit wayGone(QPrivateSignal());
}

} // namespace tessera
