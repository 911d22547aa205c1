// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

/// A mounted file system.
struct MountedVolume {
    enum class Kind : std::uint8_t { Disk, Removable, Network };

    Url url; ///< where it is mounted
    Kind kind = Kind::Disk;

    bool operator==(const MountedVolume& other) const = default;
};

/// What is mounted, told without touching the mounted file systems: one that is dead does not
/// delay the answer. Main thread only.
class MountedVolumes {
public:
    MountedVolumes() = default;
    MountedVolumes(const MountedVolumes&) = delete;
    MountedVolumes& operator=(const MountedVolumes&) = delete;
    virtual ~MountedVolumes() = default;

    /// What a user calls a disk, in the system's order.
    [[nodiscard]] virtual std::vector<MountedVolume> mountedVolumes() const = 0;

    /// What is mounted at exactly that path (bytes), be it a disk to the user or not.
    [[nodiscard]] virtual std::optional<MountedVolume> volumeAt(const std::string& path) const = 0;
};

} // namespace tessera
