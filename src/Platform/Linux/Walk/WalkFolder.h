// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Walk/DirectoryListing.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tessera {

/// Shared, because a handle may be put away while another thread still opens something by it.
using FolderHandle = std::shared_ptr<const FileDescriptor>;

/// Where a folder and all below it stand in a depth-first walk: a part of the numbers that stand
/// for the whole walk, shared out among subfolders in their order. Very deep down the numbers run
/// out and folders share one; the order is for speed alone.
struct WalkSpan {
    std::uint64_t begin = 0;
    std::uint64_t width = std::numeric_limits<std::uint64_t>::max();

    /// The part of one of `count` subfolders; the whole span when they are not counted yet.
    WalkSpan part(std::size_t position, std::size_t count) const
    {
        const std::uint64_t share = width / std::max<std::size_t>(count, 1);
        return {begin + position * share, share};
    }
};

struct WalkFolder;

/// Folders with subfolders that nobody has taken, by where the next of these stands in the walk.
using WalkOrder = std::multimap<std::uint64_t, WalkFolder*>;

/// A folder that a walk is reading, has read ahead, or is inside of. Folders are owned by the one
/// above, so that what is above a folder lives while it does.
struct WalkFolder {
    enum class State : std::uint8_t { Reading, Ready };

    WalkFolder(WalkFolder* above, std::size_t positionThere, std::string ownName)
        : parent(above)
        , position(positionThere)
        , level(above == nullptr ? 0 : above->level + 1)
        , name(std::move(ownName))
        , span(above == nullptr ? WalkSpan{} : above->spanOf(positionThere))
    {
    }

    /// Where the subfolder at that position stands.
    WalkSpan spanOf(std::size_t subfolder) const { return span.part(subfolder, subfolders.size()); }

    WalkFolder* const parent; ///< null for the folder where the walk starts
    const std::size_t position; ///< among the subfolders of `parent`
    const std::size_t level; ///< how far below the start
    const std::string name; ///< its own path component
    const WalkSpan span;

    // Written by the threads that read the folder, until it is ready; then by none.
    FileIdentity identity; ///< none where it cannot be opened
    std::uint64_t ownAllocation = 0; ///< bytes of the directory itself
    int problem = 0; ///< errno that kept it, or an entry of it, from being read to its end
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
    WalkOrder::iterator place; ///< among those with untaken ones

    // Guarded by the FolderHandles that keep the folder's handle.
    FolderHandle handle;
    std::size_t unopened = 0; ///< subfolders for which the handle is still needed
};

} // namespace tessera
