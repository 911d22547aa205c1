// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DBusRunningInstance.h"

#include "Platform/Linux/Desktop/ActivationToken.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <utility>

namespace tessera {

namespace {

const QString kApplicationInterface = QStringLiteral("org.freedesktop.Application");
const QString kActivationToken = QStringLiteral("activation-token");
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

const QString kIntrospection = QStringLiteral(R"(<interface name="org.freedesktop.Application">
  <method name="Activate">
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
  <method name="Open">
    <arg type="as" name="uris" direction="in"/>
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
</interface>)");

/// By which the desktop lets the window that is running come to the front for the user who has just
/// started the program elsewhere.
QVariantMap platformData()
{
    QVariantMap data;
    const QString token = qEnvironmentVariable(kTokenVariable);
    if (!token.isEmpty()) {
        data.insert(kActivationToken, token);
    }
    return data;
}

/// Empty when there is none, or what is none.
std::string activationToken(const QVariant& argument)
{
    const auto data = qdbus_cast<QVariantMap>(argument);
    return activationTokenIn(data.value(kActivationToken).toString());
}

/// The last one counts, as where several folders are chosen in a dialog.
std::optional<Url> lastFolder(const QVariant& argument)
{
    const auto uris = qdbus_cast<QStringList>(argument);
    if (uris.isEmpty()) {
        return Url();
    }
    const std::optional<Url> url = Url::fromAbsoluteString(uris.last().toStdString());
    return url ? std::optional(Url(url->path(), true)) : std::nullopt;
}

} // namespace

DBusRunningInstance::DBusRunningInstance(QDBusConnection bus, int timeLimitMs)
    : m_bus(std::move(bus))
    , m_timeLimitMs(timeLimitMs)
{
}

DBusRunningInstance::~DBusRunningInstance()
{
    DBusRunningInstance::giveUp();
}

void DBusRunningInstance::giveUp()
{
    if (!m_bus.isConnected()) {
        return;
    }
    m_bus.unregisterObject(QString::fromLatin1(kObjectPath));
    QDBusMessage release = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("ReleaseName"));
    release << QString::fromLatin1(kBusName);
    // Qt's own function would wait much longer for a bus that has stopped.
    (void)m_bus.call(release, QDBus::Block, m_timeLimitMs);
    m_bus = QDBusConnection(QString());
}

bool DBusRunningInstance::handOver(const Url& folder)
{
    if (!m_bus.isConnected()) {
        return false;
    }
    // The object first: whoever sees the name may call at once.
    m_bus.registerVirtualObject(QString::fromLatin1(kObjectPath), this);
    return !ownName() && callOwner(folder);
}

bool DBusRunningInstance::ownName()
{
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply
        = m_bus.interface()->registerService(QString::fromLatin1(kBusName));
    return reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool DBusRunningInstance::callOwner(const Url& folder)
{
    const bool names = !folder.empty();
    QDBusMessage call = QDBusMessage::createMethodCall(
        QString::fromLatin1(kBusName),
        QString::fromLatin1(kObjectPath),
        kApplicationInterface,
        names ? QStringLiteral("Open") : QStringLiteral("Activate"));
    if (names) {
        call << QStringList{QString::fromStdString(folder.absoluteString())};
    }
    call << platformData();
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, m_timeLimitMs);
    return reply.type() == QDBusMessage::ReplyMessage;
}

void DBusRunningInstance::setHandler(Handler handler)
{
    m_handler = std::move(handler);
    for (const Request& request : std::exchange(m_early, {})) {
        m_handler(request.folder, request.activationToken);
    }
}

void DBusRunningInstance::received(Request request)
{
    if (m_handler) {
        m_handler(request.folder, request.activationToken);
    } else {
        m_early.push_back(std::move(request));
    }
}

QString DBusRunningInstance::introspect(const QString& /*path*/) const
{
    return kIntrospection;
}

bool DBusRunningInstance::handleMessage(
    const QDBusMessage& message, const QDBusConnection& connection)
{
    // A call that was on its way when the name was given up is for the next start.
    if (message.interface() != kApplicationInterface || !m_bus.isConnected()) {
        return false;
    }
    const QVariantList arguments = message.arguments();
    std::optional<Url> folder;
    if (message.member() == QStringLiteral("Open")
        && message.signature() == QStringLiteral("asa{sv}")) {
        folder = lastFolder(arguments.at(0));
    } else if (
        message.member() == QStringLiteral("Activate")
        && message.signature() == QStringLiteral("a{sv}")) {
        folder = Url();
    } else {
        return false;
    }
    // The caller waits for no more than that its call has come.
    if (message.isReplyRequired()) {
        connection.send(
            folder ? message.createReply()
                   : message.createErrorReply(
                       QDBusError::InvalidArgs, QStringLiteral("Only local folders are opened")));
    }
    if (folder) {
        received({*std::move(folder), activationToken(arguments.last())});
    }
    return true;
}

} // namespace tessera
