// SPDX-License-Identifier: MIT
#include "Scanning/ScanWorkers.h"

namespace tessera {

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

} // namespace tessera
