// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxCoveredFolders.h"

#include "Platform/Linux/Mounts/MountTable.h"

#include <utility>

namespace tessera {

LinuxCoveredFolders::LinuxCoveredFolders(std::string mountInfo)
    : m_mountInfo(std::move(mountInfo))
{
}

std::optional<std::vector<CoveredFolder>> LinuxCoveredFolders::coveredInside(
    const std::string& folder) const
{
    const std::optional<MountTable> mounts = MountTable::ofThisProcess(m_mountInfo.c_str());
    if (!mounts || !mounts->mountOf(folder, {})) {
        return std::nullopt;
    }
    std::vector<CoveredFolder> covered;
    for (Mount& mount : mounts->mountsThatCover(folder)) {
        const std::uint64_t device = mount.deviceNumber().value_or(0);
        covered.push_back({std::move(mount.point), std::move(mount.fileSystemType), device});
    }
    return covered;
}

} // namespace tessera
