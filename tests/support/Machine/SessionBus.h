// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace tessera::test {

/// A session bus of the test's own, on which nothing is started when it is asked for: what is
/// installed here must not answer.
class SessionBus {
public:
    SessionBus() = default;
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    /// Ends all connections and the bus, of which nothing is left on the disk.
    ~SessionBus();

    /// False when dbus-daemon cannot be started.
    [[nodiscard]] bool start();

    /// Where it listens: "unix:path=…" and more.
    const QString& address() const { return m_address; }

    /// A connection of its own for each name.
    QDBusConnection connection(const QString& name);

    template <typename Condition>
    static void runEventsUntil(Condition isMet)
    {
        constexpr int kPatienceMs = 10000;
        constexpr int kTurnMs = 10;
        const QDeadlineTimer deadline(kPatienceMs);
        while (!isMet() && !deadline.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, kTurnMs);
        }
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connectionNames;
};

} // namespace tessera::test
