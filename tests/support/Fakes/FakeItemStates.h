// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ItemStates.h"

#include <map>
#include <mutex>
#include <stop_token>
#include <string>
#include <vector>

namespace tessera::test {

/// Holds what the test says of paths; any other is a file that takes nothing. Callable from any
/// thread.
class FakeItemStates final : public ItemStates {
public:
    [[nodiscard]] std::vector<ItemAnswer> statesOf(
        const std::vector<std::string>& paths, const std::stop_token& /*stop*/) const override
    {
        const std::lock_guard lock(m_mutex);
        ItemAnswer file{ItemAnswer::Outcome::Known, {}};
        file.state.kind = ItemState::Kind::File;
        std::vector<ItemAnswer> answers;
        answers.reserve(paths.size());
        for (const std::string& path : paths) {
            const auto found = m_answers.find(path);
            answers.push_back(found == m_answers.end() ? file : found->second);
        }
        return answers;
    }

    void setAnswer(const std::string& path, const ItemAnswer& answer)
    {
        const std::lock_guard lock(m_mutex);
        m_answers.insert_or_assign(path, answer);
    }

private:
    mutable std::mutex m_mutex;
    std::map<std::string, ItemAnswer> m_answers;
};

} // namespace tessera::test
