// SPDX-License-Identifier: MIT
#include "support/SessionBus.h"

#include "support/sessionBusConfiguration.h"

#include <QStandardPaths>

namespace tessera::test {

SessionBus::~SessionBus()
{
    for (const QString& name : m_connectionNames) {
        QDBusConnection::disconnectFromBus(name);
    }
    m_daemon.kill();
    m_daemon.waitForFinished();
}

bool SessionBus::start()
{
    if (!m_configuration.open()) {
        return false;
    }
    m_configuration.write(kSessionBusConfiguration);
    m_configuration.close();
    m_daemon.start(
        QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")),
        {QStringLiteral("--config-file=") + m_configuration.fileName(),
         QStringLiteral("--nofork"),
         QStringLiteral("--print-address")});
    if (!m_daemon.waitForReadyRead()) {
        return false;
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    return true;
}

QDBusConnection SessionBus::connection(const QString& name)
{
    m_connectionNames.append(name);
    return QDBusConnection::connectToBus(m_address, name);
}

} // namespace tessera::test
