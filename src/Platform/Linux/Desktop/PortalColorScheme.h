// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ColorSchemePreference.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

class QDBusPendingCallWatcher;

namespace tessera {

/// The colour scheme as the desktop's portal tells it to all programs:
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
class PortalColorScheme final : public QObject {
    Q_OBJECT

public:
    explicit PortalColorScheme(QDBusConnection bus);

    /// Asks, and listens from then on; the answer comes when the portal has it. One that never
    /// answers holds up nothing.
    void ask();

    /// No preference before the portal has answered, and where there is none.
    ColorScheme colorScheme() const { return m_colorScheme; }

signals:
    void changed();

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void answered(const QDBusPendingCallWatcher& call);
    void take(const QVariant& value);

    QDBusConnection m_bus;
    ColorScheme m_colorScheme = ColorScheme::NoPreference;
};

} // namespace tessera
