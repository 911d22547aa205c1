// SPDX-License-Identifier: MIT
#include "Scanning/WayBack.h"

#include "Scanning/MainThread.h"

#include <utility>

namespace tessera {

std::shared_ptr<WayBack> WayBack::make(MainThread& mainThread)
{
    return std::shared_ptr<WayBack>(new WayBack(mainThread));
}

void WayBack::perform(std::function<void()> work)
{
    const std::lock_guard lock(m_mutex);
    if (m_mainThread == nullptr) {
        return;
    }
    m_mainThread->perform([self = shared_from_this(), work = std::move(work)] {
        // The owner may have gone while this was waiting for its turn.
        if (self->isOpen()) {
            work();
        }
    });
}

void WayBack::close()
{
    const std::lock_guard lock(m_mutex);
    m_mainThread = nullptr;
}

bool WayBack::isOpen() const
{
    const std::lock_guard lock(m_mutex);
    return m_mainThread != nullptr;
}

} // namespace tessera
