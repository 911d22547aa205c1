// SPDX-License-Identifier: MIT
#include "Platform/Linux/MountBoundary.h"

namespace tessera {

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

} // namespace tessera
