// SPDX-License-Identifier: MIT
#include "QuickLook/PreviewThreads.h"

#include <algorithm>
#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

namespace tessera {

namespace {

struct Worker {
    std::thread thread;
    bool isDone = false;
};

class Workers {
public:
    void start(std::function<void()> work)
    {
        const std::lock_guard lock(m_mutex);
        joinDone();
        Worker& worker = m_workers.emplace_back();
        worker.thread = std::thread([this, &worker, task = std::move(work)]() mutable {
            task();
            task = nullptr; // with what it held, while somebody still waits for this thread
            const std::lock_guard ended(m_mutex);
            worker.isDone = true;
            m_changed.notify_all();
        });
    }

    bool waitForEnd(std::chrono::milliseconds timeLimit)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, timeLimit, [this] { return areAllDone(); });
        joinDone();
        for (Worker& stuck : m_workers) {
            if (stuck.thread.joinable()) {
                stuck.thread.detach();
            }
        }
        return m_workers.empty();
    }

private:
    bool areAllDone() const { return std::ranges::all_of(m_workers, &Worker::isDone); }

    /// Those that have done their work have nothing left to wait for.
    void joinDone()
    {
        m_workers.remove_if([](Worker& worker) {
            if (worker.isDone && worker.thread.joinable()) {
                worker.thread.join();
            }
            return worker.isDone;
        });
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::list<Worker> m_workers;
};

Workers& workers()
{
    // Never released: a stuck thread may come back to it at any time.
    static auto* const kWorkers = new Workers; // NOLINT(cppcoreguidelines-owning-memory)
    return *kWorkers;
}

} // namespace

void PreviewThreads::start(std::function<void()> work)
{
    workers().start(std::move(work));
}

bool PreviewThreads::waitForEnd(std::chrono::milliseconds timeLimit)
{
    return workers().waitForEnd(timeLimit);
}

} // namespace tessera
