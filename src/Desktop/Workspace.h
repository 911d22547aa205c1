// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/Url.h"
#include "Desktop/ExpectedItem.h"
#include "Desktop/PutBack.h"
#include "Desktop/TrashedItem.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessera {

/// An item that is to be moved to the trash, with its size as far as the caller knows it: a list of
/// what was moved tells it, and nobody measures a folder for that.
///
/// With an identity only that very item is moved, never what took its name since.
struct ItemToRecycle {
    /// Implicit: a URL alone says enough.
    ItemToRecycle(Url item, std::optional<std::uint64_t> size = std::nullopt)
        : url(std::move(item))
        , bytes(size)
    {
    }

    Url url;
    std::optional<std::uint64_t> bytes;
    std::optional<FileIdentity> identity = {};
    std::optional<std::uint64_t> birth = {}; ///< as TrashedItem has it; tells more than an identity
    /// With it only that very item is moved, and a file only if it has not changed since the scan.
    std::optional<ExpectedItem> expected = {};
};

/// An item that stays where it is, or of which nobody can tell.
struct NotRecycled {
    Url place;
    std::string reason; ///< one sentence for the user, the item's name in it as bytes
    std::optional<Url> mayBeAt = {}; ///< in the trash, where its disk broke off during the move
};

/// What became of items that were to be moved to the trash.
struct RecycleResult {
    std::map<std::string, Url> newUrls; ///< old absolute URL to where the item is now
    /// Why an item was not moved, one sentence for the user, the item's name in it as bytes; empty
    /// if all were. Of several items that were not moved it is about the first.
    std::string error;
    std::vector<TrashedItem> trashed = {}; ///< what was moved, in that order
    /// That the list of what was moved could not be written, as one sentence for the user; told
    /// with one result of recycleURLs() and no more. The items were moved all the same.
    std::string journalError = {};
    std::vector<NotRecycled> notMoved = {}; ///< all that was not moved, in that order
    /// Folders that were moved although they had changed since the scan, with all that was in them
    /// by then; in that order.
    std::vector<Url> grownFolders = {};
};

using RecycleCompletion = std::function<void(const RecycleResult&)>;

/// Hears whether a program opened what it was to open.
using OpenCompletion = std::function<void(bool isOpened)>;

/// What the desktop does for a program: opening and showing things in other programs, and the
/// trash. No operation waits until it is done. Main thread only.
class Workspace {
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    /// Opens a web or file URL, or the trash (trash:///), in the program that the user chose for
    /// it. The completion handler hears whether that worked, on the main thread, before or after
    /// the call has returned; not when the workspace is gone by then.
    virtual void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) = 0;

    /// Shows an item in the file viewer: opens a directory; opens the folder that holds any other
    /// item, and selects the item. The completion handler is called likewise.
    virtual void reveal(const Url& item, OpenCompletion completionHandler) = 0;

    /// Moves the items to the trash, one after the other, each at exactly that path, which must
    /// lead over no link; one that cannot be moved stays where it is and does not stop the others.
    /// The completion handler is called later, on the main thread; not when the workspace is gone
    /// by then.
    virtual void recycleURLs(std::vector<ItemToRecycle> items, RecycleCompletion completionHandler)
        = 0;

    /// Moves one file to the trash, whichever of the places it is at. What else is there stays, and
    /// so does everything when the file is at none of them, which is an error.
    virtual void recycleFile(
        const FileIdentity& file, std::vector<Url> places, RecycleCompletion completionHandler)
        = 0;

    /// Puts that very item back into the folder that it was in, over no link, where it replaces
    /// nothing; else it stays in the trash. The completion handler is called likewise.
    virtual void putBack(PutBackRequest request, PutBackCompletion completionHandler) = 0;
};

} // namespace tessera
