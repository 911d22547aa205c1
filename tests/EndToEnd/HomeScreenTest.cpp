// SPDX-License-Identifier: MIT
#include "WholeProgramFixture.h"
#include "eventually.h"

namespace tessera::test {
namespace {

TEST_F(WholeProgram, BeginsWithTheHomeScreen)
{
    EXPECT_TRUE(isHome());
}

TEST_F(WholeProgram, AClickOnALocationAndTheScanButtonLeadToItsTree)
{
    ASSERT_TRUE(choose("Documents"));
    clickOn("Scan", "push button");
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(WholeProgram, ADoubleClickOnALocationLeadsToItsTree)
{
    desk().doubleClick(see("Downloads", "filler").frame.center());
    EXPECT_TRUE(showsTree("Downloads"));
}

TEST_F(WholeProgram, ReturnScansTheChosenLocation)
{
    ASSERT_TRUE(choose("Downloads"));
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(showsTree("Downloads"));
}

} // namespace
} // namespace tessera::test
