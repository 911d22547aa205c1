// SPDX-License-Identifier: MIT
#pragma once

#include "Model/UserDefaults.h"

#include <map>
#include <string>
#include <vector>

namespace tessera::test {

/// Settings kept in memory.
class FakeUserDefaults final : public UserDefaults {
public:
    bool synchronize() override
    {
        ++synchronizeCount;
        return true;
    }

    std::map<std::string, std::string, std::less<>> texts;
    std::map<std::string, std::vector<RecentRecord>, std::less<>> records;
    int synchronizeCount = 0;

private:
    std::optional<std::string> storedText(std::string_view key) const override
    {
        const auto found = texts.find(key);
        return found != texts.end() ? std::optional(found->second) : std::nullopt;
    }

    void storeText(std::string_view key, const std::string& text) override
    {
        texts.insert_or_assign(std::string(key), text);
    }

    std::vector<RecentRecord> storedRecords(std::string_view key) const override
    {
        const auto found = records.find(key);
        return found != records.end() ? found->second : std::vector<RecentRecord>{};
    }

    void storeRecords(std::string_view key, const std::vector<RecentRecord>& list) override
    {
        records.insert_or_assign(std::string(key), list);
    }
};

} // namespace tessera::test
