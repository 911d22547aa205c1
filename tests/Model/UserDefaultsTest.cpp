// SPDX-License-Identifier: MIT
#include "Model/UserDefaults.h"

#include "support/Fakes/FakeUserDefaults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

TEST(UserDefaults, AKeyThatNobodyKnowsReadsAsNothing)
{
    const test::FakeUserDefaults defaults;
    EXPECT_EQ(defaults.integer("x"), 0);
    EXPECT_FALSE(defaults.boolean("x"));
    EXPECT_EQ(defaults.string("x"), "");
    EXPECT_TRUE(defaults.recentRecords("x").empty());
}

TEST(UserDefaults, AStoredValueWinsOverARegisteredOne)
{
    test::FakeUserDefaults defaults;
    defaults.registerDefaults({{"number", 2}, {"switch", true}, {"text", std::string("a")}});
    defaults.setInteger("number", -7);
    defaults.setBoolean("switch", false);
    defaults.setString("text", "");
    EXPECT_EQ(defaults.integer("number"), -7);
    EXPECT_FALSE(defaults.boolean("switch"));
    EXPECT_EQ(defaults.string("text"), "");
}

TEST(UserDefaults, RegisteringAgainAddsAndReplaces)
{
    test::FakeUserDefaults defaults;
    defaults.registerDefaults({{"a", 1}, {"b", 2}});
    defaults.registerDefaults({{"b", 3}});
    EXPECT_EQ(defaults.integer("a"), 1);
    EXPECT_EQ(defaults.integer("b"), 3);
}

TEST(UserDefaults, AStoredTextOfTheWrongTypeCountsAsNotStored)
{
    test::FakeUserDefaults defaults;
    defaults.registerDefaults({{"number", 2}, {"switch", true}});
    defaults.texts = {{"number", "12 apples"}, {"switch", "perhaps"}};
    EXPECT_EQ(defaults.integer("number"), 2);
    EXPECT_TRUE(defaults.boolean("switch"));
}

TEST(UserDefaults, ASwitchMayBeStoredAsANumber)
{
    test::FakeUserDefaults defaults;
    defaults.texts = {{"on", "1"}, {"off", "0"}};
    defaults.registerDefaults({{"off", true}});
    EXPECT_TRUE(defaults.boolean("on"));
    EXPECT_FALSE(defaults.boolean("off"));
}

TEST(UserDefaults, KeepsRecordsAsTheyAre)
{
    test::FakeUserDefaults defaults;
    const std::vector<RecentRecord> records{{"/a\xFF", 5, std::chrono::sys_seconds{}}};
    defaults.setRecentRecords(kRecentsKey, records);
    EXPECT_EQ(defaults.recentRecords(kRecentsKey), records);
}

TEST(UserDefaults, ObserversHearOfEachChangeOnce)
{
    test::FakeUserDefaults defaults;
    std::vector<std::string> keys;
    std::optional<Observation> observation
        = defaults.addChangeObserver([&](std::string_view key) { keys.emplace_back(key); });
    defaults.setInteger("number", 1);
    defaults.setInteger("number", 1);
    defaults.setBoolean("switch", false);
    defaults.setRecentRecords(kRecentsKey, {RecentRecord{"/a", 1, {}}});
    EXPECT_THAT(keys, testing::ElementsAre("number", "switch", "recents"));
    observation.reset();
    defaults.setInteger("number", 2);
    EXPECT_EQ(keys.size(), 3U);
}

} // namespace
} // namespace tessera
