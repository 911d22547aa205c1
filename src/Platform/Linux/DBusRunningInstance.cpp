// SPDX-License-Identifier: MIT
#include "Platform/Linux/DBusRunningInstance.h"

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

const QString kInterface = QStringLiteral("org.freedesktop.Application");
const QString kActivationToken = QStringLiteral("activation-token");
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";
constexpr int kTimeLimitMs = 2000;

const QString kIntrospection = QStringLiteral(R"(<interface name="org.freedesktop.Application">
  <method name="Activate">
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
  <method name="Open">
    <arg type="as" name="uris" direction="in"/>
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
  <method name="ActivateAction">
    <arg type="s" name="action_name" direction="in"/>
    <arg type="av" name="parameter" direction="in"/>
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

/// Qt looks for it in the environment when a window is activated.
void adoptPlatformData(const QVariant& argument)
{
    const auto data = qdbus_cast<QVariantMap>(argument);
    const QString token = data.value(kActivationToken).toString();
    if (!token.isEmpty()) {
        qputenv(kTokenVariable, token.toUtf8());
    }
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

DBusRunningInstance::DBusRunningInstance()
    : DBusRunningInstance(QDBusConnection::sessionBus(), kTimeLimitMs)
{
}

DBusRunningInstance::DBusRunningInstance(QDBusConnection bus, int timeLimitMs)
    : m_bus(std::move(bus))
    , m_timeLimitMs(timeLimitMs)
{
}

DBusRunningInstance::~DBusRunningInstance()
{
    m_bus.unregisterObject(QString::fromLatin1(kObjectPath));
    if (m_bus.isConnected()) {
        m_bus.unregisterService(QString::fromLatin1(kBusName));
    }
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
        kInterface,
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
    for (const Url& folder : std::exchange(m_early, {})) {
        m_handler(folder);
    }
}

void DBusRunningInstance::received(const Url& folder)
{
    if (m_handler) {
        m_handler(folder);
    } else {
        m_early.push_back(folder);
    }
}

QString DBusRunningInstance::introspect(const QString& /*path*/) const
{
    return kIntrospection;
}

bool DBusRunningInstance::handleMessage(
    const QDBusMessage& message, const QDBusConnection& connection)
{
    const QVariantList arguments = message.arguments();
    std::optional<Url> folder;
    if (message.interface() != kInterface) {
        return false;
    }
    if (message.member() == QStringLiteral("Open")
        && message.signature() == QStringLiteral("asa{sv}")) {
        folder = lastFolder(arguments.at(0));
        adoptPlatformData(arguments.at(1));
    } else if (
        message.member() == QStringLiteral("Activate")
        && message.signature() == QStringLiteral("a{sv}")) {
        folder = Url();
        adoptPlatformData(arguments.at(0));
    }
    if (!folder) {
        return false;
    }
    // The caller waits for no more than that its call has come.
    connection.send(message.createReply());
    received(*folder);
    return true;
}

} // namespace tessera
