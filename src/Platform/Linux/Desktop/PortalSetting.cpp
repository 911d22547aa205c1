// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/PortalSetting.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QMetaType>
#include <QStringList>

#include <utility>

namespace tessera {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");

/// "Read" wraps its value twice, for portals have always done so.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

PortalSetting::PortalSetting(QDBusConnection bus, QString key)
    : m_bus(std::move(bus))
    , m_key(std::move(key))
{
}

void PortalSetting::ask()
{
    if (!m_bus.isConnected()) {
        return;
    }
    // Qt finds a slot's types by their names, and this one may not have been used yet.
    qRegisterMetaType<QDBusVariant>();
    m_bus.connect(
        kService,
        kPath,
        kSettingsInterface,
        QStringLiteral("SettingChanged"),
        {kGroup, m_key},
        QString(),
        this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(
        kService, kPath, kSettingsInterface, QStringLiteral("Read"));
    read << kGroup << m_key;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        answered(*watcher);
        watcher->deleteLater();
    });
}

void PortalSetting::answered(const QDBusPendingCallWatcher& call)
{
    const QVariantList values = call.reply().arguments();
    if (!call.isError() && !values.isEmpty()) {
        take(values.first());
    }
}

void PortalSetting::settingChanged(
    const QString& /*group*/, const QString& /*key*/, const QDBusVariant& value)
{
    take(value.variant());
}

void PortalSetting::take(const QVariant& value)
{
    m_value = unwrapped(value);
    emit changed();
}

} // namespace tessera
