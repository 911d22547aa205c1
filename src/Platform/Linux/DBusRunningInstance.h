// SPDX-License-Identifier: MIT
#pragma once

#include "Shell/RunningInstance.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <vector>

namespace tessera {

/// The running program owns a name on the session bus and answers the calls by which desktops
/// open things with a program:
/// https://specifications.freedesktop.org/desktop-entry-spec/latest/dbus.html
class DBusRunningInstance final : public RunningInstance, private QDBusVirtualObject {
public:
    static constexpr const char* kBusName = "app.tessera.Tessera";
    static constexpr const char* kObjectPath = "/app/tessera/Tessera";

    /// On the session bus, if there is one.
    DBusRunningInstance();
    DBusRunningInstance(QDBusConnection bus, int timeLimitMs);
    ~DBusRunningInstance() override;

    [[nodiscard]] bool handOver(const Url& folder) override;
    void setHandler(Handler handler) override;

private:
    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    bool ownName();
    bool callOwner(const Url& folder);
    void received(const Url& folder);

    QDBusConnection m_bus;
    int m_timeLimitMs;
    Handler m_handler;
    std::vector<Url> m_early; ///< what came before there was a handler
};

} // namespace tessera
