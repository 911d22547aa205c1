// SPDX-License-Identifier: MIT
#pragma once

#include "Utils/MotionPreference.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>

using GSettings = struct _GSettings; // NOLINT(bugprone-reserved-identifier): as GIO declares it

namespace tessera {

/// Reads what desktops keep their setting in: "enable-animations" in GSettings, which GNOME and its
/// relatives share, and the speed of animations in KDE's file. Motion is reduced when either says
/// so; what is missing says nothing.
class DesktopMotionPreference final : public MotionPreference {
public:
    static constexpr const char* kSchema = "org.gnome.desktop.interface";

    /// `schema`: of the settings in GSettings; it need not exist. `kdeFile`: KDE's global settings.
    explicit DesktopMotionPreference(
        std::string schema = kSchema, QString kdeFile = defaultKdeFile());
    ~DesktopMotionPreference() override;

    [[nodiscard]] bool reducesMotion() const override;

    static QString defaultKdeFile();

private:
    struct Release {
        void operator()(GSettings* settings) const;
    };

    bool isStillInSettings() const;
    bool isStillInKde() const;

    std::string m_schema;
    QString m_kdeFile;
    /// Made when first needed, for it starts a thread; null when the desktop has no such setting.
    mutable std::optional<std::unique_ptr<GSettings, Release>> m_interface;
};

} // namespace tessera
