// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <mutex>

namespace tessera {

class MainThread;

/// The way back to the main thread for workers that may end when their owner is gone: each holds
/// it, and the owner closes it.
class WayBack final : public std::enable_shared_from_this<WayBack> {
public:
    /// `mainThread` must live until the way is closed.
    static std::shared_ptr<WayBack> make(MainThread& mainThread);

    /// From any thread. Has the work done on the main thread, unless the way is closed when its
    /// turn comes: it may use the owner.
    void perform(std::function<void()> work);

    /// For the owner's end, on the main thread.
    void close();

private:
    explicit WayBack(MainThread& mainThread)
        : m_mainThread(&mainThread)
    {
    }

    bool isOpen() const;

    mutable std::mutex m_mutex;
    MainThread* m_mainThread; ///< guarded by the mutex
};

} // namespace tessera
