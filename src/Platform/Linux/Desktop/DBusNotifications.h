// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Notifications.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>

class QDBusMessage;

namespace tessera {

/// The service org.freedesktop.Notifications of the session:
/// https://specifications.freedesktop.org/notification-spec/latest/
///
/// There is one question to it at a time. What is to be shown meanwhile replaces what still waits,
/// and is asked for after the answer, or after the time limit.
class DBusNotifications final : public QObject, public Notifications {
    Q_OBJECT

public:
    static constexpr int kTimeLimitMs = 10000; ///< for each answer

    /// Without a bus nothing is shown.
    explicit DBusNotifications(QDBusConnection bus, int timeLimitMs = kTimeLimitMs);

    void setHandler(Handler handler) override;
    void show(const Notification& notification) override;
    void withdraw() override;

private:
    enum class Question : std::uint8_t { None, Capabilities, Show };

    Q_SLOT void tokenCame(unsigned number, const QString& token);
    Q_SLOT void actionInvoked(unsigned number, const QString& action);
    Q_SLOT void closed(unsigned number);

    void listen();
    void askNext();
    void ask(Question question, const QDBusMessage& call);
    void answered(const QDBusMessage& reply);
    QDBusMessage showCall(const QStringList& capabilities) const;
    void takeAway();

    QDBusConnection m_bus;
    int m_timeLimitMs;
    QDBusServiceWatcher m_restarts;
    Handler m_handler;
    bool m_isListening = false;
    std::optional<Notification> m_wanted; ///< not asked for yet
    Question m_question = Question::None; ///< what the service has not answered
    bool m_isUnwanted = false; ///< what is being asked for is to go as soon as it is there
    unsigned m_shown = 0; ///< the service's number for it; 0 is none
    std::string m_token; ///< for the window, if a click follows
};

} // namespace tessera
