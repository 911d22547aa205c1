// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/LocationKind.h"
#include "Desktop/MountedVolumes.h"

#include <QIcon>
#include <QPixmap>
#include <QSize>

namespace tessera {

/// The icons of places: those of the desktop's theme, or the program's own where the theme has
/// none. Main thread only.
QIcon volumeIcon(MountedVolume::Kind kind);
QIcon locationIcon(LocationKind kind);

/// Of a folder that is nothing special.
QIcon plainFolderIcon();

/// The icon as large as the box allows, on a screen with so many pixels to the point. Themes draw
/// other pictures for other sizes, so that a size they do not have may give a tiny one.
QPixmap pixmapIn(
    const QSize& box, const QIcon& icon, qreal pixelRatio, QIcon::Mode mode = QIcon::Normal);

} // namespace tessera
