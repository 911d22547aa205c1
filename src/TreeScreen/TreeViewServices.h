// SPDX-License-Identifier: MIT
#pragma once

#include "Compress/CompressWindowController.h"
#include "DeadMounts/WithTimeLimit.h"
#include "Scanning/ScanEnvironment.h"
#include "Widgets/FrameClock.h"

#include <cstdint>
#include <functional>
#include <string>
#include <system_error>

namespace tessera {

class Alert;
class BasketKeeper;
class DiskChanges;
class MotionPreference;
class OtherPrograms;
class TrashUndo;
class UserDefaults;
class Workspace;

/// What the tree screen needs from the system and the desktop; each must outlive it.
struct TreeViewServices {
    ScanEnvironment scanEnvironment; ///< of rescans
    WithTimeLimit<ResourceValues> resourceValues;
    WithTimeLimit<FileSystemAttributes> fileSystemAttributes;
    const UserDefaults& defaults;
    Workspace& workspace;
    OtherPrograms& otherPrograms;
    Alert& alert;
    CompressServices compressing;
    const MotionPreference& motion;
    DiskChanges& diskChanges;
    TrashUndo& trashUndo;
    BasketKeeper& basket;
    std::uint32_t userNumber = 0; ///< as UserAccount has it
    /// Why the folder of that path cannot be read; no error when it can. No part of the path is a
    /// link. Answers at once.
    std::function<std::error_code(const std::string& path)> checkFolder;
    FrameClock::Seconds zoomClock = FrameClock::steadySeconds; ///< what zooms go by
};

} // namespace tessera
