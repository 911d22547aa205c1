// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"
#include "Platform/Linux/Trash/BackgroundTrash.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <vector>

class QObject;

namespace tessera {

/// The freedesktop.org desktop: its file manager over D-Bus, its trash, and xdg-open for everything
/// else.
class DBusWorkspace final : public Workspace {
public:
    /// Has whatever is there for it open an absolute URL, and says whether that worked.
    using Opener
        = std::function<void(const std::string& absoluteUrl, OpenCompletion completionHandler)>;

    /// Moves a file that is at one of the places; runs on a worker and must own all that it uses.
    using FileMover
        = std::function<RecycleResult(const FileIdentity&, const std::vector<Url>& places)>;

    /// With xdg-open and the user's own trash. `mainThread` must outlive it.
    DBusWorkspace(QDBusConnection bus, MainThread& mainThread);
    DBusWorkspace(
        QDBusConnection bus,
        Opener opener,
        MainThread& mainThread,
        BackgroundTrash::Mover mover,
        FileMover fileMover);
    ~DBusWorkspace() override;

    /// Only "http", "https" and "file" URLs are opened.
    void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) override;

    /// Asks the file manager and returns at once. Where none answers, the directory, or the folder
    /// that holds the item, is opened instead, as soon as that is known.
    void reveal(const Url& item, OpenCompletion completionHandler) override;

    /// By FreedesktopTrash, on a thread of its own; recycleFile() likewise.
    void recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler) override;
    void recycleFile(
        const FileIdentity& file,
        std::vector<Url> places,
        RecycleCompletion completionHandler) override;

private:
    QDBusConnection m_bus;
    Opener m_opener;
    BackgroundTrash m_trash;
    FileMover m_fileMover;
    std::unique_ptr<QObject> m_pendingCalls; ///< parent of the calls not yet answered
};

} // namespace tessera
