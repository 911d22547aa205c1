// SPDX-License-Identifier: MIT
#include "Model/TopFolder.h"

#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(TopFolder, AbsolutePathIsTheOriginAlsoInsideAnotherTree)
{
    const auto outer = test::makeTree("/home", "old/ ( )");
    outer->replaceChild(test::at(*outer, "old"), test::makeTree("/elsewhere/new", "x:5"));
    EXPECT_EQ(test::at(*outer, "new").absolutePath(), "/elsewhere/new");
    EXPECT_EQ(test::at(*outer, "new/x").absolutePath(), "/elsewhere/new/x");
}

} // namespace
} // namespace tessera
