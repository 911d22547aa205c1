// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/BackgroundTrash.h"
#include "Utils/Workspace.h"

#include <QDBusConnection>

#include <functional>
#include <memory>

class QObject;

namespace tessera {

/// The freedesktop.org desktop: its file manager over D-Bus, its trash, and xdg-open for everything
/// else.
class DBusWorkspace final : public Workspace {
public:
    /// Starts whatever opens an absolute URL; false when that could not be started.
    using Opener = std::function<bool(const std::string& absoluteUrl)>;

    /// With xdg-open and the user's own trash. `mainThread` must outlive it.
    DBusWorkspace(QDBusConnection bus, MainThread& mainThread);
    DBusWorkspace(
        QDBusConnection bus, Opener opener, MainThread& mainThread, BackgroundTrash::Mover mover);
    ~DBusWorkspace() override;

    /// Only "http", "https" and "file" URLs are opened.
    [[nodiscard]] bool openUrl(const std::string& absoluteUrl) override;

    /// Asks the file manager and returns at once; where there is none that can select an item, the
    /// folder that holds it is opened instead, as soon as that is known.
    [[nodiscard]] bool reveal(const Url& item) override;

    /// By FreedesktopTrash, on a thread of its own.
    void recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler) override;

private:
    QDBusConnection m_bus;
    Opener m_opener;
    BackgroundTrash m_trash;
    std::unique_ptr<QObject> m_pendingCalls; ///< parent of the calls not yet answered
};

} // namespace tessera
