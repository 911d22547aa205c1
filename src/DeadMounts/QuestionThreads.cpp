// SPDX-License-Identifier: MIT
#include "DeadMounts/QuestionThreads.h"

#include "DeadMounts/DeadMountLimits.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tessera {

struct QuestionThreads::Thread {
    std::thread handle;
    bool hasEnded = false;
    bool isLeftAlone = false; ///< and no longer to be joined
};

std::shared_ptr<QuestionThreads> QuestionThreads::make()
{
    return std::shared_ptr<QuestionThreads>(new QuestionThreads);
}

QuestionThreads::~QuestionThreads()
{
    // It may be the last of the threads that lets go of it.
    for (const auto& thread : m_threads) {
        leaveAlone(*thread);
    }
}

QuestionThreads::Started QuestionThreads::start(std::function<void()> work)
{
    const std::lock_guard lock(m_mutex);
    joinEnded();
    if (stuckThreads() >= kMostStuckThreads) {
        return {nullptr, std::make_error_code(std::errc::resource_unavailable_try_again)};
    }
    auto thread = std::make_shared<Thread>();
    try {
        thread->handle
            = std::thread([self = shared_from_this(), thread, task = std::move(work)]() mutable {
                  self->run(*thread, std::move(task));
              });
    } catch (const std::system_error& error) {
        return {nullptr, error.code()};
    }
    m_threads.push_back(thread);
    return {std::move(thread), {}};
}

void QuestionThreads::run(Thread& thread, std::function<void()> work)
{
    work();
    work = nullptr; // with what it held, while somebody still waits for this thread
    const std::lock_guard lock(m_mutex);
    thread.hasEnded = true;
    m_changed.notify_all();
}

bool QuestionThreads::hasEnded(const Thread& thread) const
{
    const std::lock_guard lock(m_mutex);
    return thread.hasEnded;
}

bool QuestionThreads::waitFor(Thread& thread, Clock::time_point until, const std::stop_token& stop)
{
    const std::stop_callback wake(stop, [this] {
        const std::lock_guard lock(m_mutex);
        m_changed.notify_all();
    });
    std::unique_lock lock(m_mutex); // after it: who lets go of `wake` waits for who runs it
    const auto hasEnded = [&thread] { return thread.hasEnded; };
    m_changed.wait_until(lock, until, [&] { return hasEnded() || stop.stop_requested(); });
    // One that is not stuck hears of the stop as well.
    m_changed.wait_until(lock, std::min(until, Clock::now() + kPatienceAfterAStop), hasEnded);
    joinEnded();
    if (!thread.hasEnded) {
        leaveAlone(thread);
    }
    return thread.hasEnded;
}

bool QuestionThreads::waitForAll(std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, patience, [this] {
        return std::ranges::all_of(m_threads, [](const auto& thread) { return thread->hasEnded; });
    });
    joinEnded();
    std::ranges::for_each(m_threads, [](const auto& thread) { leaveAlone(*thread); });
    return m_threads.empty();
}

std::size_t QuestionThreads::stuckThreads() const
{
    const auto isStuck
        = [](const auto& thread) { return thread->isLeftAlone && !thread->hasEnded; };
    return static_cast<std::size_t>(std::ranges::count_if(m_threads, isStuck));
}

/// Those that have done their work have nothing left to wait for.
void QuestionThreads::joinEnded()
{
    std::erase_if(m_threads, [](const auto& thread) {
        if (thread->hasEnded && !thread->isLeftAlone) {
            thread->handle.join();
        }
        return thread->hasEnded;
    });
}

void QuestionThreads::leaveAlone(Thread& thread)
{
    if (!thread.isLeftAlone) {
        thread.isLeftAlone = true;
        thread.handle.detach();
    }
}

} // namespace tessera
