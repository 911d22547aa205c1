// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/Url.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tessera {

/// What became of items that were to be moved to the trash.
struct RecycleResult {
    std::map<std::string, Url> newUrls; ///< old absolute URL to where the item is now
    /// Why an item was not moved, one sentence for the user, the item's name in it as bytes; empty
    /// if all were. Of several items that were not moved it is about the first.
    std::string error;
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

    /// Opens a web or file URL in the program that the user chose for it. The completion handler
    /// hears whether that worked, on the main thread, before or after the call has returned; not
    /// when the workspace is gone by then.
    virtual void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) = 0;

    /// Shows an item in the file viewer: opens a directory; opens the folder that holds any other
    /// item, and selects the item. The completion handler is called likewise.
    virtual void reveal(const Url& item, OpenCompletion completionHandler) = 0;

    /// Moves the items to the trash, one after the other, each at exactly that path, which must
    /// lead over no link; one that cannot be moved stays where it is and does not stop the others.
    /// The completion handler is called later, on the main thread; not when the workspace is gone
    /// by then.
    virtual void recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler) = 0;

    /// Moves one file to the trash, whichever of the places it is at. What else is there stays, and
    /// so does everything when the file is at none of them, which is an error.
    virtual void recycleFile(
        const FileIdentity& file, std::vector<Url> places, RecycleCompletion completionHandler)
        = 0;
};

} // namespace tessera
