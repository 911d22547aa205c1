// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tessera {

/// Runs work on the main thread. Callable from any thread.
class MainThread {
public:
    MainThread() = default;
    MainThread(const MainThread&) = delete;
    MainThread& operator=(const MainThread&) = delete;
    virtual ~MainThread() = default;

    /// Queues the work and returns at once. Work runs in the order in which it was queued; what
    /// is still waiting when the main loop has ended for good is dropped.
    virtual void perform(std::function<void()> work) = 0;

    /// Queues the work behind all that waits already and returns when it has run or was dropped.
    /// Not to be called on the main thread.
    virtual void performAndWait(std::function<void()> work) = 0;
};

} // namespace tessera
