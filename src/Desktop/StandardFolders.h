// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Desktop/LocationKind.h"

#include <string>

namespace tessera {

/// Where the system keeps what users put on the computer.
class StandardFolders {
public:
    StandardFolders() = default;
    StandardFolders(const StandardFolders&) = delete;
    StandardFolders& operator=(const StandardFolders&) = delete;
    virtual ~StandardFolders() = default;

    /// Applications installed for all users that do not belong to the system.
    [[nodiscard]] virtual Url localApplications() const = 0;

    /// The folder that holds the users' homes.
    [[nodiscard]] virtual Url localUsers() const = 0;

    /// Where the system keeps the location of a user with that home directory, should the usual
    /// place be missing; paths are bytes. Empty where it has none. Reads the user's settings.
    [[nodiscard]] virtual std::string equivalentLocation(
        LocationKind kind, const std::string& homeDirectory) const = 0;
};

} // namespace tessera
