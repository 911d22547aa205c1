// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include <gtest/gtest.h>

#include <future>
#include <string>

namespace tessera::test {

/// A file system that gives no answer until the test revives it, or ends.
class DeadFileSystem final {
public:
    DeadFileSystem() = default;
    DeadFileSystem(const DeadFileSystem&) = delete;
    DeadFileSystem& operator=(const DeadFileSystem&) = delete;
    ~DeadFileSystem() { revive(); }

    /// A question about that path is stuck from now on. Those who ask need not be patient.
    void swallow(const FileSystemQuestions& asked, const std::string& path, LinkMode linkMode) const
    {
        const auto answer = asked.ask<bool>(
            path,
            linkMode,
            [life = m_life]() -> std::optional<bool> {
                life.wait();
                return true;
            },
            FileSystemQuestions::Clock::now());
        EXPECT_FALSE(answer.has_value());
    }

    void revive()
    {
        if (!m_isAlive) {
            m_isAlive = true;
            m_revive.set_value();
        }
    }

private:
    std::promise<void> m_revive;
    std::shared_future<void> m_life{m_revive.get_future().share()};
    bool m_isAlive = false;
};

} // namespace tessera::test
