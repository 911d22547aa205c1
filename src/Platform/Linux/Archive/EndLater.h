// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <csignal>

namespace tessera {

/// While it lives, requests to end the process that come to this thread wait.
class EndLater {
public:
    static constexpr std::array kRequests{SIGTERM, SIGINT, SIGHUP};

    EndLater()
    {
        const sigset_t waiting = requests();
        ::pthread_sigmask(SIG_BLOCK, &waiting, &m_former);
    }
    EndLater(const EndLater&) = delete;
    EndLater& operator=(const EndLater&) = delete;
    ~EndLater() { ::pthread_sigmask(SIG_SETMASK, &m_former, nullptr); }

    static sigset_t requests()
    {
        sigset_t set{};
        ::sigemptyset(&set);
        for (const int signal : kRequests) {
            ::sigaddset(&set, signal);
        }
        return set;
    }

private:
    sigset_t m_former{};
};

} // namespace tessera
