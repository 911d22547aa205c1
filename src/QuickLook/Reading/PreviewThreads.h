// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

namespace tessera {

/// The threads that look at files for previews. One that ends late must not meet a program that has
/// taken down what its decoder uses, so the program waits for them at its end. Callable from any
/// thread.
class PreviewThreads final : public std::enable_shared_from_this<PreviewThreads> {
public:
    /// Shared, because a thread that is stuck keeps it alive.
    static std::shared_ptr<PreviewThreads> make();

    PreviewThreads(const PreviewThreads&) = delete;
    PreviewThreads& operator=(const PreviewThreads&) = delete;
    /// Waits for none.
    ~PreviewThreads();

    /// Says why where the system has no thread left; then nothing is done.
    [[nodiscard]] std::error_code start(std::function<void()> work);

    /// Waits until all have ended; false when some are stuck in the system beyond that time, which
    /// are then left alone.
    bool waitForEnd(std::chrono::milliseconds timeLimit);

private:
    struct Worker {
        std::thread thread;
        bool isDone = false;
    };

    PreviewThreads() = default;

    bool areAllDone() const;
    void joinDone();
    void leaveAlone();

    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    std::list<Worker> m_workers;
};

} // namespace tessera
