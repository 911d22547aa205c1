// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"
#include "Freeing/AskDisk.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>

namespace tessera {

class MainThread;
class WayBack;

/// So many files are asked about, the largest.
inline constexpr std::size_t kMostFilesToLookAt = 10'000;

/// Asks what removing items will free, off the main thread, for as long as a question may take. One
/// question at a time: who asks anew hears nothing of the one before. Main thread only.
class WillFreeQuestion {
public:
    using Answered = std::function<void(const FreedSpace& space)>;

    /// `mainThread` must outlive it.
    WillFreeQuestion(
        FreeingServices services,
        MainThread& mainThread,
        std::chrono::milliseconds patience = kWillFreePatience);
    WillFreeQuestion(const WillFreeQuestion&) = delete;
    WillFreeQuestion& operator=(const WillFreeQuestion&) = delete;
    /// As drop(). Waits for the threads under way, which end soon.
    ~WillFreeQuestion();

    /// The handler is called on the main thread, with what was found in time. Where the system has
    /// no thread left, with nothing but what the question knows.
    void ask(FreeingQuestion question, Answered answered);

    /// Nobody wants the answer any more.
    void drop();

private:
    void heard(std::uint64_t number, const FreedSpace& space);

    FreeingServices m_services;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<WayBack> m_wayBack; ///< shared with the threads
    std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
    std::stop_source m_stop; ///< of the question under way
    std::uint64_t m_number = 0; ///< likewise
    Answered m_answered; ///< likewise
};

} // namespace tessera
