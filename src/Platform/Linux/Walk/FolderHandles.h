// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/AdaptiveMutex.h"
#include "Platform/Linux/Walk/WalkFolder.h"

#include <cstddef>
#include <vector>

namespace tessera {

/// A folder's handle, or the errno that says why there is none.
struct HandleResult {
    FolderHandle handle;
    int error = 0;
};

/// Keeps folders open as long as subfolders are still to be opened by them, but only so many at a
/// time: of a deep tree the ones opened first are closed again, and opened anew by their names
/// from the nearest folder above that is open. A folder opened anew must be the one that it was;
/// so nothing that is moved during a walk can lead it elsewhere. Callable from any thread.
class FolderHandles {
public:
    /// A share of the descriptors that the process may have, and no more than do any good.
    static std::size_t defaultCapacity();

    explicit FolderHandles(std::size_t capacity)
        : m_capacity(capacity)
    {
    }

    /// Keeps the folder open until `subfolders` calls of release() for it. The walk's first folder
    /// must be kept first; it stays open to the end.
    void keep(WalkFolder& folder, FolderHandle handle, std::size_t subfolders);

    /// The handle of a folder that was kept and not yet released for the last time. There is none
    /// when the folder had to be opened anew and is not in its place any more (ENOENT), or cannot
    /// be.
    HandleResult handleOf(WalkFolder& folder);

    /// One subfolder less needs the folder's handle.
    void release(WalkFolder& folder);

    /// No subfolder needs the folder's handle any more.
    void drop(WalkFolder& folder);

private:
    void store(WalkFolder& folder, FolderHandle handle);
    void remove(WalkFolder& folder);
    void storeOnTheWay(WalkFolder& folder, const FolderHandle& handle);
    HandleResult reopen(FolderHandle from, const std::vector<WalkFolder*>& way);

    const std::size_t m_capacity;
    AdaptiveMutex m_mutex;
    FolderHandle m_start;
    std::vector<WalkFolder*> m_open; ///< in the order in which they were opened
};

} // namespace tessera
