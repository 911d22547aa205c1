// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/RunningInstance.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <string>
#include <vector>

namespace tessera {

/// The running program owns a name on the session bus and answers the calls by which desktops
/// open things with a program:
/// https://specifications.freedesktop.org/desktop-entry-spec/latest/dbus.html
class DBusRunningInstance final : public RunningInstance, private QDBusVirtualObject {
public:
    static constexpr const char* kBusName = "app.tessera.Tessera";
    static constexpr const char* kObjectPath = "/app/tessera/Tessera";
    static constexpr int kTimeLimitMs = 2000; ///< for each answer

    /// Without a bus every process is on its own.
    explicit DBusRunningInstance(QDBusConnection bus, int timeLimitMs = kTimeLimitMs);
    ~DBusRunningInstance() override;

    [[nodiscard]] bool handOver(const Url& folder) override;
    void setHandler(Handler handler) override;
    void giveUp() override;

private:
    struct Request {
        Url folder;
        std::string activationToken;
    };

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    bool ownName();
    bool callOwner(const Url& folder);
    void received(Request request);

    QDBusConnection m_bus;
    int m_timeLimitMs;
    Handler m_handler;
    std::vector<Request> m_early; ///< what came before there was a handler
};

} // namespace tessera
