// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/PortalColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <utility>

namespace tessera {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

/// Values that the portal does not define are to be taken for no preference.
ColorScheme colorSchemeOf(unsigned number)
{
    switch (number) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

/// "Read" wraps its value twice, for portals have always done so.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

PortalColorScheme::PortalColorScheme(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

void PortalColorScheme::ask()
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
        {kGroup, kKey},
        QString(),
        this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(
        kService, kPath, kSettingsInterface, QStringLiteral("Read"));
    read << kGroup << kKey;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        answered(*watcher);
        watcher->deleteLater();
    });
}

void PortalColorScheme::answered(const QDBusPendingCallWatcher& call)
{
    const QVariantList values = call.reply().arguments();
    if (!call.isError() && !values.isEmpty()) {
        take(values.first());
    }
}

void PortalColorScheme::settingChanged(
    const QString& /*group*/, const QString& /*key*/, const QDBusVariant& value)
{
    take(value.variant());
}

void PortalColorScheme::take(const QVariant& value)
{
    m_colorScheme = colorSchemeOf(unwrapped(value).toUInt());
    emit changed();
}

} // namespace tessera
