// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/DeadMountLimits.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>
#include <vector>

namespace tessera {

class MainThread;
class WayBack;

/// Has work with disks done on threads of its own, one for each call, because a network mount whose
/// server is gone would hold up the caller for as long as the server is away. Main thread only.
class DiskWorkers {
public:
    /// `mainThread` must outlive this object. The patience is that of its end.
    explicit DiskWorkers(
        MainThread& mainThread, std::chrono::milliseconds patience = kWorkerPatience);
    DiskWorkers(const DiskWorkers&) = delete;
    DiskWorkers& operator=(const DiskWorkers&) = delete;

    /// Waits a moment for the work under way, so that the end of the program breaks none off; what
    /// does not end in time goes on, and nobody is told.
    ~DiskWorkers();

    /// Returns at once; the completion handler is called on the main thread with what the work
    /// gave, or with `withoutThread` where the system has no thread left, and never when this
    /// object is gone by then. The work must own all that it uses.
    template <typename Result>
    void perform(
        std::function<Result()> work,
        std::function<void(const Result&)> completionHandler,
        Result withoutThread)
    {
        const auto result = std::make_shared<Result>(std::move(withoutThread));
        start(
            [work = std::move(work), result] { *result = work(); },
            [completion = std::move(completionHandler), result] { completion(*result); });
    }

private:
    void start(std::function<void()> work, std::function<void()> tell);
    void forgetWhatEnded();

    const std::chrono::milliseconds m_patience;
    std::shared_ptr<WayBack> m_wayBack; ///< shared with the workers
    std::vector<std::future<void>> m_underWay;
};

} // namespace tessera
