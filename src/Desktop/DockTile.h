// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class DockImage;

/// Where the desktop shows the running program: its window's icon and its entry in the panel. Main
/// thread only.
class DockTile {
public:
    DockTile() = default;
    DockTile(const DockTile&) = delete;
    DockTile& operator=(const DockTile&) = delete;
    virtual ~DockTile() = default;

    /// From now on display() draws this picture, which must be taken out before it dies.
    virtual void setContentView(DockImage& view) = 0;
    /// Restores the application's standard icon, if it is this picture that replaced it.
    virtual void removeContentView(const DockImage& view) = 0;

    /// Draws the picture as it is now; nothing when there is none.
    virtual void display() = 0;

    /// Asks for the user's attention until a window of the application is active.
    virtual void requestAttention() = 0;
};

} // namespace tessera
