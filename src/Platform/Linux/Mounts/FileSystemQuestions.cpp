// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include "Base/StartThread.h"
#include "Platform/Linux/Mounts/MountTable.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>

namespace tessera {

namespace {

std::string mountPointOf(const std::string& path)
{
    const std::optional<MountTable> mounts = MountTable::ofThisProcess();
    const std::optional<Mount> mount = mounts ? mounts->mountOf(path, {}) : std::nullopt;
    return mount ? mount->point : std::string();
}

} // namespace

/// What the askers and their threads have in common.
class FileSystemQuestions::Desk {
public:
    struct Question {
        bool isAnswered = false;
    };

    explicit Desk(MountPointOf mountPointOf)
        : m_mountPointOf(std::move(mountPointOf))
    {
    }

    /// Whether it makes sense to ask.
    bool mayAnswer(const std::string& path, LinkMode linkMode)
    {
        const std::lock_guard lock(m_mutex);
        if (m_stuck.empty()) {
            return true;
        }
        const std::string place = placeOf(path, linkMode);
        return m_stuck.size() < kMaxStuck
            && std::none_of(m_stuck.begin(), m_stuck.end(), [&place](const auto& stuck) {
                   return stuck.second == place;
               });
    }

    void answered(Question& question)
    {
        const std::lock_guard lock(m_mutex);
        question.isAnswered = true;
        m_stuck.erase(&question);
        m_answered.notify_all();
    }

    bool waitFor(
        const Question& question,
        const std::string& path,
        LinkMode linkMode,
        Clock::time_point until)
    {
        std::unique_lock lock(m_mutex);
        if (m_answered.wait_until(lock, until, [&question] { return question.isAnswered; })) {
            return true;
        }
        m_stuck.emplace(&question, placeOf(path, linkMode));
        return false;
    }

private:
    /// What counts as dead together with the path.
    std::string placeOf(const std::string& path, LinkMode linkMode) const
    {
        return linkMode == LinkMode::Keep ? m_mountPointOf(path) : path;
    }

    MountPointOf m_mountPointOf;
    std::mutex m_mutex;
    std::condition_variable m_answered;
    std::map<const Question*, std::string> m_stuck; ///< overdue, with the place of each
};

FileSystemQuestions::FileSystemQuestions(std::chrono::milliseconds patience)
    : FileSystemQuestions(patience, mountPointOf)
{
}

FileSystemQuestions::FileSystemQuestions(
    std::chrono::milliseconds patience, MountPointOf mountPointOf)
    : m_patience(patience)
    , m_desk(std::make_shared<Desk>(std::move(mountPointOf)))
{
}

bool FileSystemQuestions::perform(
    const std::string& path,
    LinkMode linkMode,
    std::function<void()> work,
    Clock::time_point until) const
{
    if (!m_desk->mayAnswer(path, linkMode)) {
        return false;
    }
    const auto question = std::make_shared<Desk::Question>();
    const std::error_code error
        = startThread([desk = m_desk, question, work = std::move(work)]() mutable {
              work();
              work = nullptr; // with what it held, before anybody hears of the answer
              desk->answered(*question);
          });
    // That says nothing about the file system, which is asked again the next time.
    return !error && m_desk->waitFor(*question, path, linkMode, until);
}

} // namespace tessera
