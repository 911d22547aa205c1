// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/CoveredFolders.h"

namespace tessera {

/// By the kernel's table of mounts, read at each question.
class LinuxCoveredFolders final : public CoveredFolders {
public:
    LinuxCoveredFolders() = default;
    /// Tests pass a table of their own.
    explicit LinuxCoveredFolders(std::string mountInfo);

    [[nodiscard]] std::optional<std::vector<CoveredFolder>> coveredInside(
        const std::string& folder) const override;

private:
    std::string m_mountInfo = "/proc/self/mountinfo";
};

} // namespace tessera
