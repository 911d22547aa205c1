// SPDX-License-Identifier: MIT
#include "Scanning/ScanWorkers.h"

#include <thread>
#include <utility>

namespace tessera {

namespace {

void startDetached(ScanWorkers::Work work)
{
    std::thread(std::move(work)).detach();
}

} // namespace

ScanWorkers::ScanWorkers()
    : ScanWorkers(startDetached)
{
}

ScanWorkers::ScanWorkers(StartThread startThread)
    : m_startThread(std::move(startThread))
{
}

std::error_code ScanWorkers::start(Work work)
{
    add();
    try {
        m_startThread([self = shared_from_this(), work = std::move(work)]() mutable {
            work();
            // What the work held on to dies before the worker counts as ended.
            work = nullptr;
            self->remove();
        });
    } catch (const std::system_error& error) {
        remove();
        return error.code();
    }
    return {};
}

void ScanWorkers::add()
{
    const std::lock_guard lock(m_mutex);
    ++m_count;
}

void ScanWorkers::remove()
{
    const std::lock_guard lock(m_mutex);
    --m_count;
    m_changed.notify_all();
}

void ScanWorkers::waitForNone()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_count == 0; });
}

bool ScanWorkers::waitForNone(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [this] { return m_count == 0; });
}

} // namespace tessera
