// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ItemChanges.h"

#include <atomic>
#include <mutex>
#include <string>

namespace tessera::test {

/// Answers what the test says. Callable from any thread.
class FakeItemChanges final : public ItemChanges {
public:
    [[nodiscard]] Answer since(
        const std::string& path,
        const FileTime& time,
        const std::stop_token& /*stop*/) const override
    {
        const std::lock_guard lock(m_mutex);
        m_path = path;
        m_time = time;
        return answer;
    }

    std::string askedFor() const
    {
        const std::lock_guard lock(m_mutex);
        return m_path;
    }

    FileTime askedSince() const
    {
        const std::lock_guard lock(m_mutex);
        return m_time;
    }

    std::atomic<Answer> answer = Answer::None;

private:
    mutable std::mutex m_mutex;
    mutable std::string m_path;
    mutable FileTime m_time;
};

} // namespace tessera::test
