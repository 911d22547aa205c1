// SPDX-License-Identifier: MIT
#include "EndToEnd/Session/TreeWindowFixture.h"

namespace tessera::test {
namespace {

TEST_F(TreeWindow, ADoubleClickZoomsIntoAFolder)
{
    desk().doubleClick(placeOf("docs"));
    EXPECT_TRUE(shows("docs"));
}

TEST_F(TreeWindow, AResizeEndsAZoomWithThePictureOfTheNewSize)
{
    desk().doubleClick(placeOf("docs"));
    desk().setFrame(mainWindow(), {0, 0, 900, 900});
    EXPECT_TRUE(shows("docs"));
}

TEST_F(TreeWindow, ThePathBarHasAComponentForEachFolderDownToTheOneInView)
{
    desk().doubleClick(placeOf("docs/drafts"));
    ASSERT_TRUE(shows("docs/drafts"));
    EXPECT_EQ(program->pathIcons().size(), 3U);
}

TEST_F(TreeWindow, AClickInThePathBarZoomsOut)
{
    desk().doubleClick(placeOf("docs/drafts"));
    ASSERT_TRUE(shows("docs/drafts"));
    desk().click(program->pathIcons().at(1));
    ASSERT_TRUE(shows("docs"));
    desk().click(program->pathIcons().at(0));
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, AClickOnTheLastComponentOfThePathBarDeselects)
{
    desk().click(placeOf("movie"));
    ASSERT_TRUE(shows({}, "movie"));
    desk().click(program->pathIcons().at(0));
    EXPECT_TRUE(shows());
}

} // namespace
} // namespace tessera::test
