// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QVariant>

class QDBusPendingCallWatcher;

namespace tessera {

/// One setting of the look of windows, as the desktop's portal tells it to all programs:
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
class PortalSetting final : public QObject {
    Q_OBJECT

public:
    /// `key`: in the portal's group of appearance.
    PortalSetting(QDBusConnection bus, QString key);

    /// Asks, and listens from then on; the answer comes when the portal has it. One that never
    /// answers holds up nothing.
    void ask();

    /// As it came from the bus: it may be of any kind. Not valid before the portal has answered,
    /// and where there is none.
    const QVariant& value() const { return m_value; }

signals:
    void changed();

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void answered(const QDBusPendingCallWatcher& call);
    void take(const QVariant& value);

    QDBusConnection m_bus;
    QString m_key;
    QVariant m_value;
};

} // namespace tessera
