// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/QuestionThreads.h"
#include "Platform/Linux/Files/FileStatus.h"

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessera {

/// Asks file systems questions to which a dead one gives no answer, each on a thread of its own,
/// and waits for the answer only so long. What does not answer in time counts as not readable.
///
/// A question that is stuck in the kernel cannot be taken back. Until it returns, others about the
/// same mount are not asked at all, so that neither the waiting nor the threads add up; and when
/// kMostStuckThreads of them are stuck, none is asked. Where the system has no thread left, a
/// question counts as not answered this once. Callable from any thread.
class FileSystemQuestions {
public:
    using Clock = QuestionThreads::Clock;

    /// The point of the mount that a path without links lies on, told without touching it.
    using MountPointOf = std::function<std::string(const std::string& path)>;

    /// By the kernel's table of mounts.
    explicit FileSystemQuestions(std::chrono::milliseconds patience);
    /// Tests pass mounts of their own.
    FileSystemQuestions(std::chrono::milliseconds patience, MountPointOf mountPointOf);

    /// Until when the answer to a question asked now is waited for. Several questions that share
    /// it take no longer together than one.
    [[nodiscard]] Clock::time_point deadline() const { return Clock::now() + m_patience; }

    /// What `question` gives; nothing when it does not return in time. What it uses must be its
    /// own. A question that follows links may lead to any mount; while it is stuck, only the same
    /// path is not asked for again.
    template <typename Answer>
    [[nodiscard]] std::optional<Answer> ask(
        const std::string& path,
        LinkMode linkMode,
        std::function<std::optional<Answer>()> question,
        std::optional<Clock::time_point> until = {}) const
    {
        auto answer = std::make_shared<std::optional<Answer>>();
        const bool isAnswered = perform(
            path,
            linkMode,
            [answer, question = std::move(question)] { *answer = question(); },
            until.value_or(deadline()));
        return isAnswered ? *answer : std::nullopt;
    }

private:
    struct Stuck {
        std::shared_ptr<QuestionThreads::Thread> thread;
        std::string place;
    };

    bool mayAnswer(const std::string& path, LinkMode linkMode) const;
    std::string placeOf(const std::string& path, LinkMode linkMode) const;
    bool perform(
        const std::string& path,
        LinkMode linkMode,
        std::function<void()> work,
        Clock::time_point until) const;

    const std::chrono::milliseconds m_patience;
    const MountPointOf m_mountPointOf;
    const std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
    mutable std::mutex m_mutex; ///< guards what follows
    mutable std::vector<Stuck> m_stuck;
};

} // namespace tessera
