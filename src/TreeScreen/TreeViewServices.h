// SPDX-License-Identifier: MIT
#pragma once

#include "Compress/CompressWindowController.h"
#include "DeadMounts/WithTimeLimit.h"
#include "Scanning/ScanEnvironment.h"
#include "Widgets/FrameClock.h"

#include <functional>
#include <string>
#include <system_error>

namespace tessera {

class Alert;
class DiskChanges;
class MotionPreference;
class UserDefaults;
class Workspace;

/// What the tree screen needs from the system and the desktop; each must outlive it.
struct TreeViewServices {
    ScanEnvironment scanEnvironment; ///< of rescans
    WithTimeLimit<ResourceValues> resourceValues;
    WithTimeLimit<FileSystemAttributes> fileSystemAttributes;
    const UserDefaults& defaults;
    Workspace& workspace;
    Alert& alert;
    CompressServices compressing;
    const MotionPreference& motion;
    DiskChanges& diskChanges;
    /// Why the folder of that path cannot be read; no error when it can. No part of the path is a
    /// link. Answers at once.
    std::function<std::error_code(const std::string& path)> checkFolder;
    FrameClock::Seconds zoomClock = FrameClock::steadySeconds; ///< what zooms go by
};

} // namespace tessera
