// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashRecord.h"

#include <functional>
#include <vector>

namespace tessera {

using TrashRecordsCompletion = std::function<void(const std::vector<TrashRecord>&)>;

/// What the program has moved to the trash, in this session and before. It writes itself: every
/// move enters it, and every item that is put back. Main thread only.
class TrashHistory {
public:
    TrashHistory() = default;
    TrashHistory(const TrashHistory&) = delete;
    TrashHistory& operator=(const TrashHistory&) = delete;
    virtual ~TrashHistory() = default;

    /// Gives the newest moves, newest first, with the states that the disks show now; what they do
    /// not show in time is given as it was written. The completion handler is called later, on the
    /// main thread; not when the history is gone by then.
    virtual void entries(TrashRecordsCompletion completionHandler) = 0;
};

} // namespace tessera
