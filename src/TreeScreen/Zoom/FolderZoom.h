// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "TreeScreen/Map/ZoomAnimation.h"
#include "TreeScreen/Zoom/ZoomGeometry.h"

#include <optional>

namespace tessera {

class Folder;
class MotionPreference;
class TreeBranch;
class TreeMapView;
class TreeScreen;

/// Changes the folder in view with an animation that grows it out of its box, or shrinks it into
/// its box. The screen's folder has changed and its selection is gone when a call returns; the
/// map tells of the animation's end. Where nothing can be animated, because the folder has no box
/// on screen or the user wants no motion, the new picture is shown at once. A running zoom ends
/// first. Main thread only.
class FolderZoom {
public:
    /// All must outlive it.
    FolderZoom(
        TreeScreen& screen,
        TreeMapView& treeView,
        const MotionPreference& motion,
        FrameClock::Seconds clock);

    /// To a folder shown inside the one in view.
    void zoomInFolder(Folder& folder);

    /// To a folder above the one in view.
    void zoomOutFolder(Folder& ancestor);

    /// Shows the folder in view alone, as at the end of a zoom; nothing while none runs.
    void endRunningZoom();

private:
    /// Where a folder is, or is thought to be, in a picture.
    struct Place {
        Rect box;
        ZoomGeometry::Box stands = ZoomGeometry::Box::Folder;
    };
    /// In the view's coordinates.
    struct ZoomMatrices {
        QTransform shrunk;
        QTransform enlarged;
    };

    void changeFolder(Folder& folder);
    void changeAtOnce(Folder& folder);
    void abortAnimation();
    std::optional<Place> placeOf(const Folder* folder, const TreeBranch& inBranch) const;
    Rect bounds() const;
    QImage paint(const TreeBranch& branch) const;
    ZoomMatrices matricesFor(const Place& place) const;
    void start(ZoomLayer lower, ZoomLayer upper);

    TreeScreen& m_screen;
    TreeMapView& m_treeView;
    const MotionPreference& m_motion;
    FrameClock::Seconds m_clock;
};

} // namespace tessera
