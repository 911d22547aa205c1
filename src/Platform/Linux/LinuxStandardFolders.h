// SPDX-License-Identifier: MIT
#pragma once

#include "Model/StandardFolders.h"

namespace tessera {

/// The folders of the Filesystem Hierarchy Standard.
class LinuxStandardFolders final : public StandardFolders {
public:
    /// /opt, because what lies under /usr belongs to the system.
    [[nodiscard]] Url localApplications() const override { return {"/opt", true}; }
    [[nodiscard]] Url localUsers() const override { return {"/home", true}; }
};

} // namespace tessera
