// SPDX-License-Identifier: MIT
#include "StallGuard.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>

namespace tessera::test {

StallGuard::StallGuard(std::chrono::seconds limit)
    : m_limit(limit)
    , m_thread([this](const std::stop_token& stop) { watch(stop); })
{
}

void StallGuard::watch(const std::stop_token& stop)
{
    unsigned before = m_signs;
    while (!stop.stop_requested()) {
        std::unique_lock lock(m_mutex);
        m_wake.wait_for(lock, stop, m_limit, [] { return false; });
        if (!stop.stop_requested() && m_signs == before) {
            (void)std::fputs("soak: the event loop does not answer\n", stderr);
            // To the first thread, whose stack tells where it hangs.
            ::tgkill(::getpid(), ::getpid(), SIGABRT);
        }
        before = m_signs;
    }
}

} // namespace tessera::test
