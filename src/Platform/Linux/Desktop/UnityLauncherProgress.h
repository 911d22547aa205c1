// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/LauncherProgress.h"

#include <QDBusConnection>

namespace tessera {

/// Tells the desktop's panel through the signal com.canonical.Unity.LauncherEntry.Update, which
/// several docks understand. See https://wiki.ubuntu.com/Unity/LauncherAPI.
class UnityLauncherProgress final : public LauncherProgress {
public:
    /// Without a bus nothing is told.
    explicit UnityLauncherProgress(QDBusConnection bus);

    void show(double fraction) override;
    void hide() override;

private:
    void update(double progress, bool isVisible) const;

    QDBusConnection m_bus;
};

} // namespace tessera
