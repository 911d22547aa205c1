// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/StandardFolders.h"

namespace tessera {

/// The folders of the Filesystem Hierarchy Standard, and those of freedesktop.org's desktops.
class LinuxStandardFolders final : public StandardFolders {
public:
    /// /opt, because what lies under /usr belongs to the system.
    [[nodiscard]] Url localApplications() const override { return {"/opt", true}; }
    /// /home, or where that leads: on some systems it is a link.
    [[nodiscard]] Url localUsers() const override;

    /// The user directories may have other names and places, after the user's language and wish.
    [[nodiscard]] std::string equivalentLocation(
        LocationKind kind, const std::string& homeDirectory) const override;
};

} // namespace tessera
