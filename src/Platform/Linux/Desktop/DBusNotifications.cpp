// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DBusNotifications.h"

#include "Platform/Linux/Desktop/ActivationToken.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QVariantMap>

#include <utility>

namespace tessera {

namespace {

const QString kNotificationService = QStringLiteral("org.freedesktop.Notifications");
const QString kNotificationPath = QStringLiteral("/org/freedesktop/Notifications");
/// What a click on the notification itself is called.
const QString kDefaultAction = QStringLiteral("default");
constexpr int kAsLongAsUsual = -1;

QDBusMessage notificationCall(const QString& method)
{
    return QDBusMessage::createMethodCall(
        kNotificationService, kNotificationPath, kNotificationService, method);
}

} // namespace

DBusNotifications::DBusNotifications(QDBusConnection bus, int timeLimitMs)
    : m_bus(std::move(bus))
    , m_timeLimitMs(timeLimitMs)
{
}

void DBusNotifications::setHandler(Handler handler)
{
    m_handler = std::move(handler);
}

void DBusNotifications::show(const Notification& notification)
{
    if (!m_bus.isConnected()) {
        return;
    }
    listen();
    m_wanted = notification;
    askNext();
}

void DBusNotifications::withdraw()
{
    m_wanted.reset();
    m_isUnwanted = m_question == Question::Show;
    takeAway();
}

void DBusNotifications::listen()
{
    if (std::exchange(m_isListening, true)) {
        return;
    }
    const auto hear = [this](const char* signal, const char* slot) {
        m_bus.connect(
            kNotificationService,
            kNotificationPath,
            kNotificationService,
            QString::fromLatin1(signal),
            this,
            slot);
    };
    hear("ActivationToken", SLOT(tokenCame(uint, QString)));
    hear("ActionInvoked", SLOT(actionInvoked(uint, QString)));
    hear("NotificationClosed", SLOT(closed(uint)));
    m_restarts.setConnection(m_bus);
    m_restarts.addWatchedService(kNotificationService);
    // The numbers of another service are of other programs' notifications.
    connect(&m_restarts, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] { m_shown = 0; });
}

void DBusNotifications::askNext()
{
    if (m_wanted && m_question == Question::None) {
        ask(Question::Capabilities, notificationCall(QStringLiteral("GetCapabilities")));
    }
}

void DBusNotifications::ask(Question question, const QDBusMessage& call)
{
    m_question = question;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, m_timeLimitMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        answered(watcher->reply());
    });
}

void DBusNotifications::answered(const QDBusMessage& reply)
{
    const Question question = std::exchange(m_question, Question::None);
    const QVariantList values = reply.arguments();
    if (question == Question::Show) {
        if (reply.signature() == QStringLiteral("u")) {
            m_shown = values.first().toUInt();
        }
        if (std::exchange(m_isUnwanted, false)) {
            takeAway();
        }
        askNext();
    } else if (reply.signature() != QStringLiteral("as")) {
        m_wanted.reset(); // nobody there who shows it
    } else if (m_wanted) {
        const QDBusMessage call = showCall(values.first().toStringList());
        m_wanted.reset();
        ask(Question::Show, call);
    }
}

QDBusMessage DBusNotifications::showCall(const QStringList& capabilities) const
{
    const QString text = QString::fromStdString(m_wanted->text);
    const bool isMarkup = capabilities.contains(QStringLiteral("body-markup"));
    QStringList actions;
    if (capabilities.contains(QStringLiteral("actions"))) {
        actions << kDefaultAction << tr("Show");
    }
    QDBusMessage call = notificationCall(QStringLiteral("Notify"));
    // The program is known by the name of its desktop entry, and so is its icon.
    call << QStringLiteral("Tessera") << m_shown << QStringLiteral("tessera")
         << QString::fromStdString(m_wanted->title) << (isMarkup ? text.toHtmlEscaped() : text)
         << actions << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("tessera")}}
         << kAsLongAsUsual;
    return call;
}

void DBusNotifications::takeAway()
{
    if (m_shown == 0) {
        return;
    }
    QDBusMessage call = notificationCall(QStringLiteral("CloseNotification"));
    call << std::exchange(m_shown, 0);
    // Whether it works nobody need know.
    static_cast<void>(m_bus.send(call));
}

void DBusNotifications::tokenCame(unsigned number, const QString& token)
{
    if (number != 0 && number == m_shown) {
        m_token = activationTokenIn(token);
    }
}

void DBusNotifications::actionInvoked(unsigned number, const QString& action)
{
    if (number != 0 && number == m_shown && action == kDefaultAction && m_handler) {
        m_handler(std::exchange(m_token, {}));
    }
}

void DBusNotifications::closed(unsigned number)
{
    if (number == m_shown) {
        m_shown = 0;
        m_token.clear();
    }
}

} // namespace tessera
