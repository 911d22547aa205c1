// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <system_error>

namespace tessera {

/// Starts the worker threads of scans and counts them, so that the program can wait for them at its
/// end. Made as a shared one, which its workers keep. Callable from any thread.
class ScanWorkers final : public std::enable_shared_from_this<ScanWorkers> {
public:
    using Work = std::function<void()>;

    /// Has a new thread do the work, or throws std::system_error. Tests pass their own.
    using StartThread = std::function<void(Work work)>;

    ScanWorkers();
    explicit ScanWorkers(StartThread startThread);

    /// Has a worker do the work; when there is no thread to be had, says why and does nothing.
    [[nodiscard]] std::error_code start(Work work);

    /// Blocks until no worker is running any more.
    void waitForNone();
    /// Likewise, but no longer than that; false when one is still running then.
    [[nodiscard]] bool waitForNone(std::chrono::milliseconds limit);

private:
    void add();
    void remove();

    const StartThread m_startThread;
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    int m_count = 0;
};

} // namespace tessera
