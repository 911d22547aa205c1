// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

namespace tessera {

/// How the home screen and the scan panel share the main window's content area. Kept as distances
/// from the area's lower edge, so that it stays right when the window changes its size. Points.
struct ScanPanelPlace {
    /// At the desktop's usual font. A panel with larger letters is higher.
    static constexpr double kPanelHeight = 230;
    /// The panel covers the home screen's lowest part, its bar with the scan button, which is of no
    /// use meanwhile.
    static constexpr double kOverlap = 56;

    double homeBottom = 0; ///< how far the home screen's lower edge lies above the area's
    double panelTop = 0; ///< how far the panel's upper edge lies above the area's lower edge
    double panelHeight = kPanelHeight;

    /// The home screen fills the area, and the panel waits just below it.
    static constexpr ScanPanelPlace before() { return {}; }
    /// The panel has slid in.
    static constexpr ScanPanelPlace slidIn(double panelHeight = kPanelHeight)
    {
        return {panelHeight - kOverlap, panelHeight, panelHeight};
    }
    /// The home screen fills the area again, and the panel went down by its height from here.
    constexpr ScanPanelPlace slidOut() const { return {0, panelTop - panelHeight, panelHeight}; }

    /// Part of the way to another place, 0 to 1.
    ScanPanelPlace toward(const ScanPanelPlace& other, double share) const;

    /// In an area of that size, y downward.
    Rect homeFrame(double areaWidth, double areaHeight) const;
    Rect panelFrame(double areaWidth, double areaHeight) const;

    bool operator==(const ScanPanelPlace&) const = default;
};

} // namespace tessera
