// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/HiddenFilesPreference.h"
#include "Platform/Linux/Desktop/DesktopSettings.h"

#include <QString>

#include <string>

namespace tessera {

/// Reads what KDE's choosers keep in its file of global settings and GTK's in GSettings. On KDE its
/// own counts first, elsewhere GTK's.
class DesktopHiddenFilesPreference final : public HiddenFilesPreference {
public:
    struct Sources {
        std::string gtk4 = "org.gtk.gtk4.Settings.FileChooser"; ///< schemas, which need not exist
        std::string gtk3 = "org.gtk.Settings.FileChooser";
        QString kdeFile;
        bool isKde = false;
    };

    explicit DesktopHiddenFilesPreference(Sources sources);
    ~DesktopHiddenFilesPreference() override;

    [[nodiscard]] std::optional<bool> showsHiddenFiles() const override;

private:
    std::optional<bool> inKde() const;
    std::optional<bool> inGtk() const;

    DesktopSettings m_gtk4;
    DesktopSettings m_gtk3;
    QString m_kdeFile;
    bool m_isKde;
};

} // namespace tessera
