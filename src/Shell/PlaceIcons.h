// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LocationKind.h"
#include "Model/MountedVolumes.h"

#include <QIcon>

namespace tessera {

/// The icons of places: those of the desktop's theme, or the program's own where the theme has
/// none. Main thread only.
QIcon volumeIcon(MountedVolume::Kind kind);
QIcon locationIcon(LocationKind kind);

/// Of a folder that is nothing special.
QIcon plainFolderIcon();

} // namespace tessera
