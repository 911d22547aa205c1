// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/MainThread.h"

#include <memory>

namespace tessera {

/// Runs work in the event loop of the thread that made this object, which must be the one that
/// runs the application. It must outlive every worker that uses it: close() it, wait for the
/// workers to end, then destroy it.
class QtMainThread final : public MainThread {
public:
    QtMainThread();
    ~QtMainThread() override;

    /// Drops the work still queued and all that comes later, and lets those who wait go on.
    void close();

    void perform(std::function<void()> work) override;
    void performAndWait(std::function<void()> work) override;

private:
    class Queue;
    std::unique_ptr<Queue> m_queue;
};

} // namespace tessera
