// SPDX-License-Identifier: MIT
#include "Platform/Linux/DesktopMotionPreference.h"

#include <QSettings>
#include <QStandardPaths>

// Qt's "signals" would replace a member's name in GIO's headers.
#undef signals
#include <gio/gio.h>

#include <utility>

namespace tessera {

namespace {

constexpr const char* kEnableAnimations = "enable-animations";

const QString kAnimationDuration = QStringLiteral("KDE/AnimationDurationFactor");

/// Asking for a schema or a key that is not installed would end the process.
bool hasKey(const char* schemaId, const char* key)
{
    GSettingsSchemaSource* const source = g_settings_schema_source_get_default();
    GSettingsSchema* const schema
        = source != nullptr ? g_settings_schema_source_lookup(source, schemaId, TRUE) : nullptr;
    if (schema == nullptr) {
        return false;
    }
    const bool result = g_settings_schema_has_key(schema, key) != FALSE;
    g_settings_schema_unref(schema);
    return result;
}

} // namespace

void DesktopMotionPreference::Release::operator()(GSettings* settings) const
{
    g_object_unref(settings);
}

DesktopMotionPreference::DesktopMotionPreference(std::string schema, QString kdeFile)
    : m_schema(std::move(schema))
    , m_kdeFile(std::move(kdeFile))
{
}

DesktopMotionPreference::~DesktopMotionPreference() = default;

QString DesktopMotionPreference::defaultKdeFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/kdeglobals");
}

bool DesktopMotionPreference::reducesMotion() const
{
    return isStillInSettings() || isStillInKde();
}

bool DesktopMotionPreference::isStillInSettings() const
{
    if (!m_interface.has_value()) {
        const char* const schema = m_schema.c_str();
        m_interface.emplace(hasKey(schema, kEnableAnimations) ? g_settings_new(schema) : nullptr);
    }
    GSettings* const settings = m_interface->get();
    return settings != nullptr && g_settings_get_boolean(settings, kEnableAnimations) == FALSE;
}

bool DesktopMotionPreference::isStillInKde() const
{
    const QVariant factor = QSettings(m_kdeFile, QSettings::IniFormat).value(kAnimationDuration);
    bool isNumber = false;
    const double value = factor.toDouble(&isNumber);
    return isNumber && value <= 0;
}

} // namespace tessera
