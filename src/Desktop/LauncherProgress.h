// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// The progress that desktops show on a program's entry in their panel or dock. Main thread only;
/// no operation waits for the desktop.
class LauncherProgress {
public:
    LauncherProgress() = default;
    LauncherProgress(const LauncherProgress&) = delete;
    LauncherProgress& operator=(const LauncherProgress&) = delete;
    virtual ~LauncherProgress() = default;

    /// Shows a fraction. It may lie beyond 1 or be no number at all, as a scan's may.
    virtual void show(double fraction) = 0;
    virtual void hide() = 0;
};

} // namespace tessera
