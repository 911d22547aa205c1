// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/DirectoryListing.h"
#include "Platform/Linux/FileStatus.h"

#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <vector>

namespace tessera {

/// Shared, because a handle may be put away while another thread still opens something by it.
using FolderHandle = std::shared_ptr<const FileDescriptor>;

/// A folder that a walk is reading, has read ahead, or is inside of. Folders are owned by the one
/// above, so that what is above a folder lives while it does.
struct WalkFolder {
    enum class State : std::uint8_t { Reading, Ready };

    WalkFolder(WalkFolder* above, std::size_t positionThere, std::string ownName)
        : parent(above)
        , position(positionThere)
        , name(std::move(ownName))
    {
    }

    WalkFolder* const parent; ///< null for the folder where the walk starts
    const std::size_t position; ///< among the subfolders of `parent`
    const std::string name; ///< its own path component

    // Written by the threads that read the folder, until it is ready; then by none.
    FileIdentity identity;
    DirectoryListing listing;
    std::vector<std::size_t> directories; ///< which entries of the listing are directories
    FolderHandle readingHandle;

    // Guarded by the ReadAhead that the folder belongs to.
    State state = State::Reading;
    bool isAbandoned = false; ///< nobody wants it any more
    bool isPinned = false; ///< something below was abandoned, whose readers may still look up here
    std::size_t stepsLeft = 0; ///< parts of its entries that are still being completed
    std::vector<std::unique_ptr<WalkFolder>> subfolders; ///< one place for each of `directories`
    std::size_t nextUntaken = 0; ///< the subfolders before this one were taken or passed by
    std::list<WalkFolder*>::iterator place; ///< among the folders with untaken subfolders

    // Guarded by the FolderHandles that keep the folder's handle.
    FolderHandle handle;
    std::size_t unopened = 0; ///< subfolders for which the handle is still needed
};

} // namespace tessera
