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
    ScanEnvironment scanEnvironment;
    const UserDefaults& defaults;
    Workspace& workspace;
    Alert& alert;
    CompressServices compressing;
    const MotionPreference& motion;
    ZoomAnimation::Clock zoomClock = ZoomAnimation::steadyClock; ///< what zooms go by
};

} // namespace tessera
