// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/MotionPreference.h"
#include "Platform/Linux/Desktop/DesktopSettings.h"

#include <QString>

#include <string>

namespace tessera {

/// Reads what desktops keep their setting in: "enable-animations" in GSettings, which GNOME and its
/// relatives share, and the speed of animations in KDE's file. Motion is reduced when either says
/// so; what is missing says nothing.
class DesktopMotionPreference final : public MotionPreference {
public:
    /// `schema`: of the settings in GSettings; it need not exist. `kdeFile`: KDE's global settings.
    explicit DesktopMotionPreference(
        std::string schema = DesktopSettings::kSchema, QString kdeFile = defaultKdeFile());
    ~DesktopMotionPreference() override;

    [[nodiscard]] bool reducesMotion() const override;

    static QString defaultKdeFile();

private:
    bool isStillInSettings() const;
    bool isStillInKde() const;

    DesktopSettings m_settings;
    QString m_kdeFile;
};

} // namespace tessera
