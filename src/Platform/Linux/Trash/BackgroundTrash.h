// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"
#include "Platform/Linux/Trash/DiskWorkers.h"

#include <functional>
#include <vector>

namespace tessera {

/// Moves items to the trash and back on threads of its own, as DiskWorkers has them, which also
/// says what its end waits for. Main thread only.
class BackgroundTrash {
public:
    /// Moves something; runs on a worker and must own all that it uses.
    using Move = std::function<RecycleResult()>;
    /// Moves the items one after the other; likewise.
    using Mover = std::function<RecycleResult(const std::vector<ItemToRecycle>&)>;
    /// Puts an item back; likewise.
    using PutBack = std::function<PutBackResult()>;

    /// `mainThread` must outlive this object.
    BackgroundTrash(MainThread& mainThread, Mover mover);

    /// Returns at once; the completion handler is called on the main thread, or never when this
    /// object is gone by then. Where the system has no thread left it hears that nothing was moved.
    void recycle(std::vector<ItemToRecycle> items, RecycleCompletion completionHandler);

    /// The same for a move of the caller's own.
    void perform(Move move, RecycleCompletion completionHandler);

    /// The same for an item that leaves the trash.
    void perform(PutBack putBack, PutBackCompletion completionHandler);

private:
    Mover m_mover;
    DiskWorkers m_workers;
};

} // namespace tessera
