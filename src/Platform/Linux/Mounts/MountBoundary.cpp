// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/MountBoundary.h"

#include <linux/magic.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::uint64_t kXfsMagic = 0x58465342; // statfs(2); not in the kernel's header
constexpr std::array<std::uint64_t, 6> kWithoutAutomounts{
    EXT4_SUPER_MAGIC,
    BTRFS_SUPER_MAGIC,
    kXfsMagic,
    F2FS_SUPER_MAGIC,
    TMPFS_MAGIC,
    OVERLAYFS_SUPER_MAGIC};

} // namespace

bool MountBoundary::isCrossedBy(const FileStatus& directory) const
{
    if (directory.isAutomountTrigger) {
        return true;
    }
    if (directory.isMountRoot) {
        return *directory.isMountRoot;
    }
    if (directory.mountId && m_start.mountId) {
        return *directory.mountId != *m_start.mountId;
    }
    return directory.identity.device != m_start.identity.device;
}

bool mayHoldAutomounts(const FileDescriptor& directory)
{
    // Autofs and some network file systems mount where one enters; what is not known may do so too.
    struct statfs values { };
    if (::fstatfs(directory.number(), &values) != 0) {
        return true;
    }
    const auto type = static_cast<std::uint64_t>(values.f_type);
    return std::find(kWithoutAutomounts.begin(), kWithoutAutomounts.end(), type)
        == kWithoutAutomounts.end();
}

} // namespace tessera
