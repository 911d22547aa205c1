// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopColorSchemePreference.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

constexpr const char* kColorScheme = "color-scheme";
constexpr const char* kGtkTheme = "gtk-theme";
constexpr const char* kGtkThemeVariable = "GTK_THEME";

bool isDarkWord(std::string_view word)
{
    constexpr std::string_view kDark = "dark";
    return std::ranges::equal(word, kDark, [](char letter, char expected) {
        return std::tolower(static_cast<unsigned char>(letter)) == expected;
    });
}

/// "Adwaita-dark", "Mint-Y-Dark-Aqua" and "Adwaita:dark" are; "Arc-Darker" has dark headers on
/// light windows.
bool isDarkTheme(std::string_view name)
{
    constexpr std::string_view kSeparators = "-_: ";
    while (!name.empty()) {
        const std::size_t end = std::min(name.find_first_of(kSeparators), name.size());
        if (isDarkWord(name.substr(0, end))) {
            return true;
        }
        name.remove_prefix(std::min(end + 1, name.size()));
    }
    return false;
}

} // namespace

DesktopColorSchemePreference::DesktopColorSchemePreference(
    QDBusConnection bus, std::string schema, std::string gtkTheme)
    : m_gtkTheme(std::move(gtkTheme))
    , m_portal(std::move(bus))
    , m_settings(std::move(schema))
{
}

DesktopColorSchemePreference::DesktopColorSchemePreference(QDBusConnection bus)
    : DesktopColorSchemePreference(
        std::move(bus),
        DesktopSettings::kSchema,
        qEnvironmentVariable(kGtkThemeVariable).toStdString())
{
}

DesktopColorSchemePreference::~DesktopColorSchemePreference() = default;

ColorScheme DesktopColorSchemePreference::colorScheme() const
{
    const ColorScheme told = m_portal.colorScheme();
    if (told != ColorScheme::NoPreference) {
        return told;
    }
    const ColorScheme set = inSettings();
    return set != ColorScheme::NoPreference ? set : ofTheme();
}

void DesktopColorSchemePreference::setHandler(Handler handler)
{
    const bool isFirst = !m_handler;
    m_handler = std::move(handler);
    if (isFirst) {
        m_settings.setHandler([this] { m_handler(); });
        QObject::connect(
            &m_portal, &PortalColorScheme::changed, &m_portal, [this] { m_handler(); });
        m_portal.ask();
    }
}

ColorScheme DesktopColorSchemePreference::inSettings() const
{
    const std::string value = m_settings.string(kColorScheme).value_or(std::string());
    if (value == "prefer-dark") {
        return ColorScheme::Dark;
    }
    return value == "prefer-light" ? ColorScheme::Light : ColorScheme::NoPreference;
}

ColorScheme DesktopColorSchemePreference::ofTheme() const
{
    const std::string name
        = m_gtkTheme.empty() ? m_settings.string(kGtkTheme).value_or(std::string()) : m_gtkTheme;
    return isDarkTheme(name) ? ColorScheme::Dark : ColorScheme::NoPreference;
}

} // namespace tessera
