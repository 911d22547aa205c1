// SPDX-License-Identifier: MIT
#pragma once

#include "TreeView/ZoomAnimation.h"

namespace tessera {

class FileSystemAttributes;
class MotionPreference;

/// What the tree screen needs from the system; each must outlive it.
struct TreeViewServices {
    const FileSystemAttributes& fileSystem;
    const MotionPreference& motion;
    ZoomAnimation::Clock zoomClock = ZoomAnimation::steadyClock; ///< what zooms go by
};

} // namespace tessera
