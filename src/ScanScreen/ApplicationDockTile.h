// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/DockTile.h"

#include <QIcon>

namespace tessera {

class LauncherProgress;

/// The dock tile made of what Qt and the desktop offer: the icon of the application's windows and
/// the progress on its launcher.
class ApplicationDockTile final : public DockTile {
public:
    /// The standard icon is the application's window icon at this moment. `launcher` must outlive
    /// the tile.
    explicit ApplicationDockTile(LauncherProgress& launcher);

    void setContentView(DockImage& view) override;
    void removeContentView(const DockImage& view) override;
    void display() override;
    void requestAttention() override;

private:
    LauncherProgress& m_launcher;
    const QIcon m_standardIcon;
    DockImage* m_contentView = nullptr;
    int m_shownSteps = -1; ///< what the icon shows; none at first
};

} // namespace tessera
