// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"
#include "Desktop/SharedExtents.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

struct fiemap;

namespace tessera {

/// By FS_IOC_FIEMAP, on a thread of its own. Nothing but the very file, and nothing but a regular
/// one, is opened for it.
/// https://docs.kernel.org/filesystems/fiemap.html
class LinuxSharedExtents final : public SharedExtents {
public:
    /// Asks an open file for some of its extents: 0, or an errno. Tests pass their own.
    using ExtentsOf = std::function<int(int descriptor, fiemap& request)>;

    struct Limits {
        std::size_t files = 10000;
        std::chrono::milliseconds patience = kSharedExtentsPatience;
    };

    LinuxSharedExtents();
    explicit LinuxSharedExtents(const Limits& limits);
    LinuxSharedExtents(const Limits& limits, ExtentsOf extentsOf);

    [[nodiscard]] SharedExtentsAnswer extentsOf(
        const std::vector<NamedFile>& files, const std::stop_token& stop) const override;

private:
    Limits m_limits;
    ExtentsOf m_extentsOf;
    std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
};

} // namespace tessera
