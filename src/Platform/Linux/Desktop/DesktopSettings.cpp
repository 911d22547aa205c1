// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopSettings.h"

#include <gio/gio.h>

#include <utility>

namespace tessera {

namespace {

struct Unref {
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(GVariant* value) const { g_variant_unref(value); }
};

std::unique_ptr<GSettingsSchema, Unref> findSchema(const char* schemaId)
{
    GSettingsSchemaSource* const source = g_settings_schema_source_get_default();
    return std::unique_ptr<GSettingsSchema, Unref>(
        source != nullptr ? g_settings_schema_source_lookup(source, schemaId, TRUE) : nullptr);
}

/// Null when there is no such value: asking for a key that is not installed would end the process.
std::unique_ptr<GVariant, Unref> valueOf(
    GSettings* settings, const std::string& schemaId, const char* key, const GVariantType* type)
{
    if (settings == nullptr
        || g_settings_schema_has_key(findSchema(schemaId.c_str()).get(), key) == FALSE) {
        return nullptr;
    }
    std::unique_ptr<GVariant, Unref> value(g_settings_get_value(settings, key));
    return g_variant_is_of_type(value.get(), type) != FALSE ? std::move(value) : nullptr;
}

} // namespace

void DesktopSettings::Release::operator()(GSettings* settings) const
{
    g_object_unref(settings);
}

DesktopSettings::DesktopSettings(std::string schema)
    : m_schema(std::move(schema))
{
}

DesktopSettings::~DesktopSettings()
{
    if (m_handler && settings() != nullptr) {
        g_signal_handlers_disconnect_by_data(settings(), this);
    }
}

std::optional<bool> DesktopSettings::boolean(const char* key) const
{
    const auto value = valueOf(settings(), m_schema, key, G_VARIANT_TYPE_BOOLEAN);
    return value == nullptr ? std::nullopt
                            : std::optional(g_variant_get_boolean(value.get()) != FALSE);
}

std::optional<std::string> DesktopSettings::string(const char* key) const
{
    const auto value = valueOf(settings(), m_schema, key, G_VARIANT_TYPE_STRING);
    return value == nullptr
        ? std::nullopt
        : std::optional<std::string>(g_variant_get_string(value.get(), nullptr));
}

void DesktopSettings::setHandler(std::function<void()> handler)
{
    const bool isFirst = !m_handler;
    m_handler = std::move(handler);
    if (!isFirst || settings() == nullptr) {
        return;
    }
    const auto changed = +[](GSettings* /*settings*/, const char* /*key*/, gpointer self) {
        static_cast<DesktopSettings*>(self)->m_handler();
    };
    g_signal_connect(settings(), "changed", G_CALLBACK(changed), this);
}

GSettings* DesktopSettings::settings() const
{
    if (!m_settings.has_value()) {
        const auto schema = findSchema(m_schema.c_str());
        m_settings.emplace(
            schema != nullptr ? g_settings_new_full(schema.get(), nullptr, nullptr) : nullptr);
    }
    return m_settings->get();
}

} // namespace tessera
