// SPDX-License-Identifier: MIT
#include "TreeWindowFixture.h"

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

TEST_F(TreeWindow, ADoubleClickOnADocumentStaysInTheFolder)
{
    desk().doubleClick(placeOf("movie"));
    EXPECT_TRUE(shows({}, "movie"));
}

} // namespace
} // namespace tessera::test
