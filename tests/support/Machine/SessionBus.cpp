// SPDX-License-Identifier: MIT
#include "support/Machine/SessionBus.h"

#include "support/Machine/SessionBusConfiguration.h"

#include <QFile>
#include <QStandardPaths>

namespace tessera::test {

SessionBus::~SessionBus()
{
    for (const QString& name : m_connectionNames) {
        QDBusConnection::disconnectFromBus(name);
    }
    // It takes its socket away when it is asked to end.
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

bool SessionBus::start()
{
    QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
    if (!m_folder.isValid() || !configuration.open(QIODevice::WriteOnly)) {
        return false;
    }
    configuration.write(
        QByteArray::fromStdString(sessionBusConfiguration(m_folder.path().toStdString())));
    configuration.close();
    m_daemon.start(
        QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")),
        {QStringLiteral("--config-file=") + configuration.fileName(),
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
