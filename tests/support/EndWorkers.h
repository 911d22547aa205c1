// SPDX-License-Identifier: MIT
#pragma once

#include "support/Fakes/FakeTreeViewServices.h"

#include <atomic>
#include <thread>

namespace tessera::test {

/// Waits until no worker of a scan is left. One may wait for the main thread, so that has to turn
/// meanwhile.
inline void endWorkers(FakeTreeViewServices& services)
{
    std::atomic<bool> isDone = false;
    std::thread waiting([&] {
        services.workers->waitForNone();
        isDone = true;
        services.mainThread.perform([] {});
    });
    services.mainThread.runUntil([&] { return isDone.load(); });
    waiting.join();
}

} // namespace tessera::test
