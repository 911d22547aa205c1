// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"

namespace tessera {

/// Tells where a walk that started at one directory would leave that directory's mount.
class MountBoundary {
public:
    explicit MountBoundary(const FileStatus& start)
        : m_start(start)
    {
    }

    /// Whether `directory`, met below the start, is another mount or would become one when
    /// entered. The device number decides only on kernels that know no better: a subvolume has
    /// one of its own without being mounted, a bind mount has the one of the place around it.
    bool isCrossedBy(const FileStatus& directory) const;

private:
    FileStatus m_start;
};

/// Whether opening a directory on the mount of an open one may mount something there. Where it
/// cannot, a walk is spared a look at each directory before it opens it.
[[nodiscard]] bool mayHoldAutomounts(const FileDescriptor& directory);

} // namespace tessera
