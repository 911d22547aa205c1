// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ColorSchemePreference.h"
#include "Platform/Linux/Desktop/DesktopSettings.h"
#include "Platform/Linux/Desktop/PortalSetting.h"

#include <QDBusConnection>

#include <string>

namespace tessera {

/// The first that has a preference: the desktop's portal, the setting of GNOME and its relatives
/// that the portal would read, and the name of the theme that GTK's programs have; for the accent's
/// colour, the first two. Until the portal
/// answers the others count, so that windows open in the right colours at once on most desktops.
class DesktopColorSchemePreference final : public ColorSchemePreference {
public:
    /// `gtkTheme`: of the programs that this process' environment chooses a theme for; may be
    /// empty.
    DesktopColorSchemePreference(QDBusConnection bus, std::string schema, std::string gtkTheme);
    /// As the session of that bus says it.
    explicit DesktopColorSchemePreference(QDBusConnection bus);
    ~DesktopColorSchemePreference() override;

    [[nodiscard]] ColorScheme colorScheme() const override;
    [[nodiscard]] std::optional<AccentColor> accentColor() const override;
    void setHandler(Handler handler) override;

private:
    ColorScheme inSettings() const;
    ColorScheme ofTheme() const;

    Handler m_handler;
    std::string m_gtkTheme;
    PortalSetting m_portal;
    PortalSetting m_portalAccent;
    DesktopSettings m_settings;
};

} // namespace tessera
