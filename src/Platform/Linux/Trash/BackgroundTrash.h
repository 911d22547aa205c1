// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <vector>

namespace tessera {

class MainThread;

/// Moves items to the trash on threads of its own, one for each call, because a network mount whose
/// server is gone would hold up the caller for as long as the server is away. Main thread only.
class BackgroundTrash {
public:
    /// Moves something; runs on a worker and must own all that it uses.
    using Move = std::function<RecycleResult()>;
    /// Moves the items one after the other; likewise.
    using Mover = std::function<RecycleResult(const std::vector<Url>&)>;

    /// `mainThread` must outlive this object.
    BackgroundTrash(MainThread& mainThread, Mover mover);
    BackgroundTrash(const BackgroundTrash&) = delete;
    BackgroundTrash& operator=(const BackgroundTrash&) = delete;

    /// Waits a moment for the moves under way, so that the end of the program breaks none off; one
    /// that does not end in time goes on, and nobody is told.
    ~BackgroundTrash();

    /// Returns at once; the completion handler is called on the main thread, or never when this
    /// object is gone by then. Where the system has no thread left it hears that nothing was moved.
    void recycle(std::vector<Url> urls, RecycleCompletion completionHandler);

    /// The same for a move of the caller's own.
    void perform(Move move, RecycleCompletion completionHandler);

private:
    class Delivery;

    void forgetEndedMoves();

    Mover m_mover;
    std::shared_ptr<Delivery> m_delivery; ///< shared with the workers
    std::vector<std::future<void>> m_moves;
};

} // namespace tessera
