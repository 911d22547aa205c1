// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tessera {

/// What the system sends a program that is to end: when the session ends, from a terminal, by a
/// user's command. Main thread only.
class EndRequests {
public:
    EndRequests() = default;
    EndRequests(const EndRequests&) = delete;
    EndRequests& operator=(const EndRequests&) = delete;
    virtual ~EndRequests() = default;

    /// From now on a request is handed to the handler, on the main thread, instead of ending the
    /// program on the spot; one that comes a while later ends it, whatever it is busy with.
    virtual void setHandler(std::function<void()> handler) = 0;
};

} // namespace tessera
