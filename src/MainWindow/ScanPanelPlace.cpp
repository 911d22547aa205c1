// SPDX-License-Identifier: MIT
#include "MainWindow/ScanPanelPlace.h"

#include <cmath>

namespace tessera {

ScanPanelPlace ScanPanelPlace::toward(const ScanPanelPlace& other, double share) const
{
    return {
        std::lerp(homeBottom, other.homeBottom, share),
        std::lerp(panelTop, other.panelTop, share),
        other.panelHeight};
}

Rect ScanPanelPlace::homeFrame(double areaWidth, double areaHeight) const
{
    return {0, 0, areaWidth, areaHeight - homeBottom};
}

Rect ScanPanelPlace::panelFrame(double areaWidth, double areaHeight) const
{
    return {0, areaHeight - panelTop, areaWidth, panelHeight};
}

} // namespace tessera
