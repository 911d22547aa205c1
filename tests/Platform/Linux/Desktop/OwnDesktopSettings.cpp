// SPDX-License-Identifier: MIT
#include "OwnDesktopSettings.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

// Qt's "signals" would replace a member's name in GIO's headers.
#undef signals
#include <gio/gio.h>

#include <array>
#include <memory>

namespace tessera::test {

namespace {

constexpr const char* kAnimations = "enable-animations";
constexpr const char* kColorScheme = "color-scheme";
constexpr const char* kGtkTheme = "gtk-theme";
constexpr const char* kAccentColor = "accent-color";
constexpr const char* kShowHidden = "show-hidden";

const QByteArray kSchemas = R"(<schemalist>
  <enum id="org.example.tessera.scheme">
    <value nick="default" value="0"/>
    <value nick="prefer-dark" value="1"/>
    <value nick="prefer-light" value="2"/>
  </enum>
  <schema id="org.example.tessera.interface" path="/org/example/tessera/interface/">
    <key name="enable-animations" type="b"><default>true</default></key>
    <key name="show-hidden" type="b"><default>false</default></key>
    <key name="color-scheme" enum="org.example.tessera.scheme"><default>'default'</default></key>
    <key name="accent-color" type="s"><default>'default'</default></key>
    <key name="gtk-theme" type="s"><default>'Adwaita'</default></key>
  </schema>
  <schema id="org.example.tessera.other" path="/org/example/tessera/other/">
    <key name="color-scheme" type="b"><default>false</default></key>
  </schema>
</schemalist>)";

struct Release {
    void operator()(GSettings* settings) const { g_object_unref(settings); }
};

std::unique_ptr<GSettings, Release> ownSettings()
{
    return std::unique_ptr<GSettings, Release>(g_settings_new(kOwnSchema));
}

bool install()
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("test.gschema.xml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(kSchemas) != kSchemas.size()) {
        return false;
    }
    file.close();
    qputenv("GSETTINGS_SCHEMA_DIR", QFile::encodeName(folder.path()));
    qputenv("GSETTINGS_BACKEND", "memory");
    return QProcess::execute(QStringLiteral("glib-compile-schemas"), {folder.path()}) == 0;
}

} // namespace

bool installOwnSettings()
{
    static const bool isInstalled = install();
    return isInstalled;
}

void setOwnSetting(const char* key, bool value)
{
    g_settings_set_boolean(ownSettings().get(), key, value ? TRUE : FALSE);
}

void setOwnSetting(const char* key, const std::string& value)
{
    g_settings_set_string(ownSettings().get(), key, value.c_str());
}

void resetOwnSettings()
{
    for (const char* key :
         std::array{kAnimations, kColorScheme, kGtkTheme, kAccentColor, kShowHidden}) {
        g_settings_reset(ownSettings().get(), key);
    }
}

} // namespace tessera::test
