// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/UnityLauncherProgress.h"

#include <QDBusMessage>
#include <QString>
#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessera {

UnityLauncherProgress::UnityLauncherProgress(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

void UnityLauncherProgress::show(double fraction)
{
    update(std::isfinite(fraction) ? std::clamp(fraction, 0.0, 1.0) : 0.0, true);
}

void UnityLauncherProgress::hide()
{
    update(0.0, false);
}

void UnityLauncherProgress::update(double progress, bool isVisible) const
{
    if (!m_bus.isConnected()) {
        return;
    }
    QDBusMessage signal = QDBusMessage::createSignal(
        QStringLiteral("/org/tessera/LauncherEntry"),
        QStringLiteral("com.canonical.Unity.LauncherEntry"),
        QStringLiteral("Update"));
    // The program is known by the name of its desktop entry.
    signal << QStringLiteral("application://tessera.desktop")
           << QVariantMap{
                  {QStringLiteral("progress"), progress},
                  {QStringLiteral("progress-visible"), isVisible}};
    // A panel that cannot be told shows no progress; there is nothing else to do about it.
    static_cast<void>(m_bus.send(signal));
}

} // namespace tessera
