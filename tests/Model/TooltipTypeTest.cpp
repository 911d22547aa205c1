// SPDX-License-Identifier: MIT
#include "Model/TooltipType.h"

#include "support/Fakes/FakeUserDefaults.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace tessera {
namespace {

constexpr std::array kStored{
    std::pair{TooltipType::None, 0},
    std::pair{TooltipType::Short, 1},
    std::pair{TooltipType::Full, 2}};

TEST(TooltipType, IsStoredAsItsNumber)
{
    for (const auto& [type, number] : kStored) {
        test::FakeUserDefaults defaults;
        setTooltipType(defaults, type);
        EXPECT_EQ(defaults.integer("TooltipType"), number);
        EXPECT_EQ(tooltipType(defaults), type);
    }
}

TEST(TooltipType, AnyOtherNumberCountsAsTheNearest)
{
    test::FakeUserDefaults defaults;
    defaults.setInteger("TooltipType", -1);
    EXPECT_EQ(tooltipType(defaults), TooltipType::None);
    defaults.setInteger("TooltipType", 7);
    EXPECT_EQ(tooltipType(defaults), TooltipType::Full);
}

} // namespace
} // namespace tessera
