// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Url.h"

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
};

} // namespace tessera
