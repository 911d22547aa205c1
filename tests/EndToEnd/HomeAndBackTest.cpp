// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/DrivenTreeScreen.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

namespace tessera::test {
namespace {

TEST_F(WholeProgram, TheHomeButtonLeadsBackFromAZoomedTree)
{
    ASSERT_TRUE(scan("Documents"));
    desk().doubleClick(placeOf("drafts"));
    ASSERT_TRUE(showsTree("Documents", "drafts"));
    clickOn("Choose another disk or folder", "push button");
    EXPECT_TRUE(isHome());
}

TEST_F(WholeProgram, TheKeysOfTheHomeButtonDoTheSame)
{
    ASSERT_TRUE(scan("Documents"));
    desk().typeKeys({key::kAlt, key::kHome});
    EXPECT_TRUE(isHome());
}

TEST_F(WholeProgram, TheHomeButtonIsOnlyForTheTree)
{
    EXPECT_FALSE(see("Choose another disk or folder", "push button").isEnabled());
    ASSERT_TRUE(scan("Documents"));
    EXPECT_TRUE(see("Choose another disk or folder", "push button").isEnabled());
}

TEST_F(WholeProgram, NoPathIsShownOnTheHomeScreen)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(reader().find("Path of the folder in view").has_value());
    desk().typeKeys({key::kAlt, key::kHome});
    ASSERT_TRUE(isHome());
    EXPECT_TRUE(isGone("Path of the folder in view"));
}

TEST_F(WholeProgram, AnotherLocationCanBeScannedAfterwards)
{
    ASSERT_TRUE(scan("Documents"));
    desk().typeKeys({key::kAlt, key::kHome});
    ASSERT_TRUE(isHome());
    EXPECT_TRUE(scan("Downloads"));
}

} // namespace
} // namespace tessera::test
