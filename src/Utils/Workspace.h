// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Url.h"

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

/// What the desktop does for a program: opening and showing things in other programs, and the
/// trash. No operation waits until it is done. Main thread only.
class Workspace {
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    /// Opens a web or file URL in the program that the user chose for it: a folder's in the file
    /// viewer. False when no such program could be started.
    [[nodiscard]] virtual bool openUrl(const std::string& absoluteUrl) = 0;

    /// Opens the folder that holds the item in the file viewer and selects the item there. False
    /// when the desktop could not be asked.
    [[nodiscard]] virtual bool reveal(const Url& item) = 0;

    /// Moves the items to the trash, one after the other; one that cannot be moved stays where it
    /// is and does not stop the others. The completion handler is called later, on the main thread;
    /// not when the workspace is gone by then.
    virtual void recycleURLs(std::vector<Url> urls, RecycleCompletion completionHandler) = 0;
};

} // namespace tessera
