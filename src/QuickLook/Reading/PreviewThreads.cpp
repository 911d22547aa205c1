// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/PreviewThreads.h"

#include <algorithm>
#include <utility>

namespace tessera {

std::shared_ptr<PreviewThreads> PreviewThreads::make()
{
    return std::shared_ptr<PreviewThreads>(new PreviewThreads);
}

PreviewThreads::~PreviewThreads()
{
    // It may be the last of the threads that lets go of it.
    leaveAlone();
}

std::error_code PreviewThreads::start(std::function<void()> work)
{
    const std::lock_guard lock(m_mutex);
    joinDone();
    Worker& worker = m_workers.emplace_back();
    try {
        worker.thread
            = std::thread([self = shared_from_this(), &worker, task = std::move(work)]() mutable {
                  task();
                  task = nullptr; // with what it held, while somebody still waits for this thread
                  const std::lock_guard ended(self->m_mutex);
                  worker.isDone = true;
                  self->m_changed.notify_all();
              });
    } catch (const std::system_error& error) {
        m_workers.pop_back();
        return error.code();
    }
    return {};
}

bool PreviewThreads::waitForEnd(std::chrono::milliseconds timeLimit)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, timeLimit, [this] { return areAllDone(); });
    joinDone();
    leaveAlone();
    return m_workers.empty();
}

bool PreviewThreads::areAllDone() const
{
    return std::ranges::all_of(m_workers, &Worker::isDone);
}

/// Those that have done their work have nothing left to wait for.
void PreviewThreads::joinDone()
{
    m_workers.remove_if([](Worker& worker) {
        if (worker.isDone && worker.thread.joinable()) {
            worker.thread.join();
        }
        return worker.isDone;
    });
}

void PreviewThreads::leaveAlone()
{
    for (Worker& worker : m_workers) {
        if (worker.thread.joinable()) {
            worker.thread.detach();
        }
    }
}

} // namespace tessera
