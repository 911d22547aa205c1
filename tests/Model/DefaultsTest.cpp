// SPDX-License-Identifier: MIT
#include "Model/Defaults.h"

#include "support/Fakes/FakeUserDefaults.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(Defaults, ApplyWhereNothingIsStored)
{
    test::FakeUserDefaults defaults;
    registerDefaults(defaults);
    EXPECT_EQ(defaults.integer("TooltipType"), 2);
    EXPECT_TRUE(defaults.boolean("WarnDeleteHidden"));
    EXPECT_TRUE(defaults.boolean("WarnDeleteSystem"));
    EXPECT_TRUE(defaults.recentRecords("recents").empty());
}

TEST(Defaults, GiveWayToWhatTheUserStored)
{
    test::FakeUserDefaults defaults;
    defaults.setInteger("TooltipType", 0);
    defaults.setBoolean("WarnDeleteHidden", false);
    defaults.setBoolean("WarnDeleteSystem", false);
    registerDefaults(defaults);
    EXPECT_EQ(defaults.integer("TooltipType"), 0);
    EXPECT_FALSE(defaults.boolean("WarnDeleteHidden"));
    EXPECT_FALSE(defaults.boolean("WarnDeleteSystem"));
}

TEST(Defaults, AreNotWrittenToTheStore)
{
    test::FakeUserDefaults defaults;
    registerDefaults(defaults);
    EXPECT_TRUE(defaults.texts.empty());
}

} // namespace
} // namespace tessera
