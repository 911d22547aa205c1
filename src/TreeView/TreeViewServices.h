// SPDX-License-Identifier: MIT
#pragma once

#include "FileOps/CompressWindowController.h"
#include "Scanning/ScanEnvironment.h"
#include "TreeView/ZoomAnimation.h"

namespace tessera {

class Alert;
class MotionPreference;
class UserDefaults;
class Workspace;

/// What the tree screen needs from the system and the desktop; each must outlive it.
struct TreeViewServices {
    ScanEnvironment scanEnvironment; ///< of rescans
    /// Asked by the main thread: they give up before anybody notices.
    const ResourceValues& resourceValues;
    const FileSystemAttributes& fileSystemAttributes;
    const UserDefaults& defaults;
    Workspace& workspace;
    Alert& alert;
    CompressServices compressing;
    const MotionPreference& motion;
    ZoomAnimation::Clock zoomClock = ZoomAnimation::steadyClock; ///< what zooms go by
};

} // namespace tessera
