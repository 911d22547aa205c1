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
    /// Has whatever is there for it open an absolute URL, and says whether that worked.
    using Opener
        = std::function<void(const std::string& absoluteUrl, OpenCompletion completionHandler)>;

    /// With xdg-open and the user's own trash. `mainThread` must outlive it.
    DBusWorkspace(QDBusConnection bus, MainThread& mainThread);
    DBusWorkspace(
        QDBusConnection bus, Opener opener, MainThread& mainThread, BackgroundTrash::Mover mover);
    ~DBusWorkspace() override;

    /// Only "http", "https" and "file" URLs are opened.
    void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) override;

    /// Asks the file manager and returns at once. Where none answers, the directory, or the folder
    /// that holds the item, is opened instead, as soon as that is known.
    void reveal(const Url& item, OpenCompletion completionHandler) override;

    /// By FreedesktopTrash, on a thread of its own.
    void recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler) override;

private:
    QDBusConnection m_bus;
    Opener m_opener;
    BackgroundTrash m_trash;
    std::unique_ptr<QObject> m_pendingCalls; ///< parent of the calls not yet answered
};

} // namespace tessera
