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

class TrashJournal;

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

    /// Puts an item back; likewise.
    using PutterBack = std::function<PutBackResult(const PutBackRequest&)>;

    /// How items are moved to the trash and back.
    struct TrashCalls {
        BackgroundTrash::Mover recycle;
        FileMover recycleFile;
        PutterBack putBack;
    };

    /// With xdg-open and the user's own trash, which enters what it does in the journal.
    /// `mainThread` must outlive it.
    DBusWorkspace(
        QDBusConnection bus, MainThread& mainThread, std::shared_ptr<TrashJournal> journal);
    DBusWorkspace(QDBusConnection bus, Opener opener, MainThread& mainThread, TrashCalls trash);
    ~DBusWorkspace() override;

    /// Only "http", "https" and "file" URLs are opened.
    void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) override;

    /// Asks the file manager and returns at once. Where none answers, the directory, or the folder
    /// that holds the item, is opened instead, as soon as that is known.
    void reveal(const Url& item, OpenCompletion completionHandler) override;

    /// By FreedesktopTrash, on a thread of its own; so are the two that follow.
    void recycleURLs(
        std::vector<ItemToRecycle> items, RecycleCompletion completionHandler) override;
    void recycleFile(
        const FileIdentity& file,
        std::vector<Url> places,
        RecycleCompletion completionHandler) override;
    void putBack(PutBackRequest request, PutBackCompletion completionHandler) override;

private:
    QDBusConnection m_bus;
    Opener m_opener;
    BackgroundTrash m_trash;
    FileMover m_fileMover;
    PutterBack m_putterBack;
    std::unique_ptr<QObject> m_pendingCalls; ///< parent of the calls not yet answered
};

} // namespace tessera
