// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <stop_token>
#include <system_error>

namespace tessera {

/// The threads of somebody who asks the system what it may never answer: one that is stuck in a
/// dead mount can neither be ended nor waited for. It is left alone then and counted until it comes
/// back, and while kMostStuckThreads are stuck, no more are started. Callable from any thread.
class QuestionThreads final : public std::enable_shared_from_this<QuestionThreads> {
public:
    using Clock = std::chrono::steady_clock;

    /// One of them, for who wants to hear of its end.
    struct Thread;

    struct Started {
        std::shared_ptr<Thread> thread; ///< null where there is an error
        std::error_code error;
    };

    /// Shared, because a thread that is stuck keeps it alive.
    static std::shared_ptr<QuestionThreads> make();

    QuestionThreads(const QuestionThreads&) = delete;
    QuestionThreads& operator=(const QuestionThreads&) = delete;
    /// Waits for none.
    ~QuestionThreads();

    /// What the work uses must be its own; it is gone before the thread counts as ended. Says why
    /// where the system has no thread left, or too many are stuck; then nothing is done.
    [[nodiscard]] Started start(std::function<void()> work);

    [[nodiscard]] bool hasEnded(const Thread& thread) const;

    /// False when it has not ended by then, or soon after a stop; it counts as stuck.
    [[nodiscard]] bool waitFor(
        Thread& thread, Clock::time_point until, const std::stop_token& stop = {});

    /// False when some have not ended in that time; they count as stuck. Of those that have,
    /// nothing runs any more, not even what a library does at a thread's end.
    [[nodiscard]] bool waitForAll(std::chrono::milliseconds patience);

private:
    QuestionThreads() = default;

    void run(Thread& thread, std::function<void()> work);
    std::size_t stuckThreads() const;
    void joinEnded();
    static void leaveAlone(Thread& thread);

    mutable std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    std::list<std::shared_ptr<Thread>> m_threads;
};

} // namespace tessera
