// SPDX-License-Identifier: MIT
#include "Base/Rect.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(Rect, HoldsItsLeftAndTopEdgesButNotTheOthers)
{
    const Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.contains({10, 20}));
    EXPECT_FALSE(rect.contains({40, 30}));
    EXPECT_FALSE(rect.contains({20, 60}));
    EXPECT_FALSE(rect.contains({9.99, 30}));
}

TEST(Rect, InsetMovesEveryEdgeInward)
{
    EXPECT_EQ((Rect{10, 20, 30, 40}.inset(1, 2)), (Rect{11, 22, 28, 36}));
}

} // namespace
} // namespace tessera
