// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

class Url;

/// What the desktop does for a program: opening and showing things in other programs. Neither
/// operation waits until something is on the screen. Main thread only.
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
};

} // namespace tessera
