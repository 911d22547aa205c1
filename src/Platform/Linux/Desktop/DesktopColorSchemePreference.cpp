// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DesktopColorSchemePreference.h"

#include <QDBusArgument>

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

constexpr const char* kColorScheme = "color-scheme";
constexpr const char* kAccentColor = "accent-color";
constexpr const char* kGtkTheme = "gtk-theme";
constexpr const char* kGtkThemeVariable = "GTK_THEME";

/// Values that the portal does not define are to be taken for no preference.
ColorScheme colorSchemeOf(const QVariant& number)
{
    switch (number.toUInt()) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

bool isPartOfColor(double part)
{
    return part >= 0 && part <= 1;
}

/// The portal says by parts out of range that the user has chosen none.
std::optional<AccentColor> accentOf(const QVariant& value)
{
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)")) {
        return std::nullopt;
    }
    AccentColor color;
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    const bool isColor
        = isPartOfColor(color.red) && isPartOfColor(color.green) && isPartOfColor(color.blue);
    return isColor ? std::optional(color) : std::nullopt;
}

struct NamedAccent {
    std::string_view name;
    std::uint32_t hex;
};

/// The colours that GNOME gives a user to choose from, as its own programs paint them.
constexpr std::array kNamedAccents{
    NamedAccent{"blue", 0x3584E4},
    NamedAccent{"teal", 0x2190A4},
    NamedAccent{"green", 0x3A944A},
    NamedAccent{"yellow", 0xC88800},
    NamedAccent{"orange", 0xED5B00},
    NamedAccent{"red", 0xE62D42},
    NamedAccent{"pink", 0xD56199},
    NamedAccent{"purple", 0x9141AC},
    NamedAccent{"slate", 0x6F8396}};

std::optional<AccentColor> accentNamed(std::string_view name)
{
    constexpr double kMost = 0xFF;
    const auto* const found = std::ranges::find(kNamedAccents, name, &NamedAccent::name);
    if (found == kNamedAccents.end()) {
        return std::nullopt;
    }
    const auto part
        = [hex = found->hex](unsigned shift) { return ((hex >> shift) & 0xFFU) / kMost; };
    return AccentColor{part(16), part(8), part(0)};
}

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
    , m_portal(bus, QString::fromLatin1(kColorScheme))
    , m_portalAccent(std::move(bus), QString::fromLatin1(kAccentColor))
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
    const ColorScheme told = colorSchemeOf(m_portal.value());
    if (told != ColorScheme::NoPreference) {
        return told;
    }
    const ColorScheme set = inSettings();
    return set != ColorScheme::NoPreference ? set : ofTheme();
}

std::optional<AccentColor> DesktopColorSchemePreference::accentColor() const
{
    const std::optional<AccentColor> told = accentOf(m_portalAccent.value());
    return told ? told : accentNamed(m_settings.string(kAccentColor).value_or(std::string()));
}

void DesktopColorSchemePreference::setHandler(Handler handler)
{
    const bool isFirst = !m_handler;
    m_handler = std::move(handler);
    if (isFirst) {
        m_settings.setHandler([this] { m_handler(); });
        for (PortalSetting* const setting : {&m_portal, &m_portalAccent}) {
            QObject::connect(setting, &PortalSetting::changed, setting, [this] { m_handler(); });
            setting->ask();
        }
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
