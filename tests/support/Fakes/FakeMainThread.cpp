// SPDX-License-Identifier: MIT
#include "support/Fakes/FakeMainThread.h"

#include <utility>

namespace tessera::test {

std::shared_ptr<FakeMainThread::Job> FakeMainThread::add(std::function<void()> work, bool waits)
{
    auto job = std::make_shared<Job>();
    job->work = std::move(work);
    const std::lock_guard lock(m_mutex);
    m_jobs.push_back(job);
    m_waits.push_back(waits);
    m_changed.notify_all();
    return job;
}

void FakeMainThread::perform(std::function<void()> work)
{
    add(std::move(work), false);
}

void FakeMainThread::performAndWait(std::function<void()> work)
{
    const std::shared_ptr<Job> job = add(std::move(work), true);
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&job] { return job->done; });
}

void FakeMainThread::awaitWork()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_jobs.empty(); });
}

std::vector<bool> FakeMainThread::waits()
{
    const std::lock_guard lock(m_mutex);
    return m_waits;
}

void FakeMainThread::runUntil(const std::function<bool()>& done)
{
    while (!done()) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_jobs.empty(); });
        const std::shared_ptr<Job> job = m_jobs.front();
        m_jobs.pop_front();
        lock.unlock();
        job->work();
        lock.lock();
        job->done = true;
        m_changed.notify_all();
    }
}

} // namespace tessera::test
