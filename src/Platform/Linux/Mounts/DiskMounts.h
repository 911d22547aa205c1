// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/MountedVolumes.h"
#include "Platform/Linux/Mounts/MountTable.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Those mounts that a user calls a disk: the root, block devices and network shares, each only
/// once, without what the system mounts for itself and without the hidden points. Of a disk that is
/// listed no part is, but for subvolumes of the upmost level. `isFile` is asked of mounts that are
/// a part of something, which may be a single file.
[[nodiscard]] std::vector<MountedVolume> diskMounts(
    const MountTable& mounts,
    const std::set<std::string>& hiddenPoints,
    const std::function<bool(const std::string& point)>& isFile);

/// What kind of volume a mount is.
[[nodiscard]] MountedVolume volumeOf(const Mount& mount);

/// The mount points that are to be hidden from users ("x-gvfs-hide"), of a text like /etc/fstab.
/// https://man7.org/linux/man-pages/man5/fstab.5.html
[[nodiscard]] std::set<std::string> pointsHiddenInFstab(std::string_view fstab);

} // namespace tessera
