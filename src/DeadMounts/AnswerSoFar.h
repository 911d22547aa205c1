// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/QuestionThreads.h"

#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <utility>

namespace tessera {

/// What a thread that may get stuck has found so far, for who waits for it only so long. Callable
/// from any thread.
template <typename Answer>
class AnswerSoFar {
public:
    /// Small changes only: who no longer waits for the thread waits for the change.
    template <typename Change>
    void change(const Change& change)
    {
        const std::lock_guard lock(m_mutex);
        change(m_answer);
    }

    Answer copy() const
    {
        const std::lock_guard lock(m_mutex);
        return m_answer;
    }

private:
    mutable std::mutex m_mutex;
    Answer m_answer{}; ///< guarded by the mutex
};

/// Has the work done on a thread of its own and gives what it has found by then, or soon after a
/// stop, all or a part; nothing where there is no thread to be had. The work should end by itself
/// then; where it is stuck it is left alone, so what it uses must be its own.
template <typename Answer>
[[nodiscard]] Answer answerUntil(
    QuestionThreads& threads,
    QuestionThreads::Clock::time_point until,
    const std::stop_token& stop,
    std::function<void(AnswerSoFar<Answer>& soFar)> work)
{
    const auto soFar = std::make_shared<AnswerSoFar<Answer>>();
    const auto [thread, error] = threads.start([soFar, work = std::move(work)] { work(*soFar); });
    if (!error) {
        (void)threads.waitFor(*thread, until, stop);
    }
    return soFar->copy();
}

} // namespace tessera
