// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <mutex>

namespace tessera {

/// Counts the worker threads of scans, so that the program can wait for them at its end. Callable
/// from any thread.
class ScanWorkers final {
public:
    void add();
    void remove();

    /// Blocks until no worker is running any more.
    void waitForNone();

private:
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    int m_count = 0;
};

} // namespace tessera
