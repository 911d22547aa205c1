// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashHistory.h"

#include <deque>
#include <utility>
#include <vector>

namespace tessera::test {

/// A history that answers when the test says so.
class FakeTrashHistory final : public TrashHistory {
public:
    void entries(TrashRecordsCompletion completionHandler) override
    {
        ++asked;
        m_completions.push_back(std::move(completionHandler));
    }

    /// Answers the oldest question that has no answer yet; false when there is none.
    bool answer(const std::vector<TrashRecord>& records)
    {
        if (m_completions.empty()) {
            return false;
        }
        const TrashRecordsCompletion completion = std::move(m_completions.front());
        m_completions.pop_front();
        completion(records);
        return true;
    }

    int asked = 0; ///< how often

private:
    std::deque<TrashRecordsCompletion> m_completions;
};

} // namespace tessera::test
