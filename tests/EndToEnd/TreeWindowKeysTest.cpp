// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/TreeWindowFixture.h"

#include <filesystem>

namespace tessera::test {
namespace {

TEST_F(TreeWindow, ReturnZoomsIntoTheSelectedFolderAndBackspaceOut)
{
    desk().click(placeOf("docs"));
    desk().typeKey(key::kReturn);
    ASSERT_TRUE(shows("docs"));
    desk().typeKey(key::kBackspace);
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, AnArrowKeyMovesTheSelectionToTheBoxOnThatSide)
{
    desk().click(placeOf("movie"));
    ASSERT_TRUE(shows({}, "movie"));
    desk().typeKey(key::kDown);
    EXPECT_TRUE(shows({}, "song"));
}

TEST_F(TreeWindow, TheMenuKeyOpensTheMenuOfTheSelectedBox)
{
    desk().click(placeOf("song"));
    ASSERT_TRUE(shows({}, "song"));
    desk().typeKey(key::kMenu);
    EXPECT_TRUE(opens(XWindow::Kind::Menu));
    desk().typeKey(key::kEscape);
    EXPECT_TRUE(closes(XWindow::Kind::Menu));
}

TEST_F(TreeWindow, DeleteMovesTheSelectedItemToTheTrash)
{
    desk().click(placeOf("docs/notes"));
    ASSERT_TRUE(shows({}, "docs/notes"));
    desk().typeKey(key::kDelete);
    ASSERT_TRUE(acceptWarning());
    ASSERT_TRUE(eventually([&] { return !std::filesystem::exists(tree.pathOf("docs/notes")); }));
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, ReturnInTheWarningKeepsTheItem)
{
    desk().click(placeOf("song"));
    ASSERT_TRUE(shows({}, "song"));
    desk().typeKey(key::kDelete);
    ASSERT_TRUE(acceptDialog());
    EXPECT_TRUE(std::filesystem::exists(tree.pathOf("song")));
    EXPECT_TRUE(shows({}, "song"));
}

TEST_F(TreeWindow, EscapeInTheWarningKeepsTheItem)
{
    desk().click(placeOf("song"));
    ASSERT_TRUE(shows({}, "song"));
    desk().typeKey(key::kDelete);
    ASSERT_TRUE(rejectDialog());
    EXPECT_TRUE(std::filesystem::exists(tree.pathOf("song")));
    EXPECT_TRUE(shows({}, "song"));
}

TEST_F(TreeWindow, TheSpaceBarOpensAPreviewThatEscapeCloses)
{
    desk().click(placeOf("song"));
    ASSERT_TRUE(shows({}, "song"));
    desk().typeKey(key::kSpace);
    ASSERT_TRUE(closePreview());
    EXPECT_TRUE(shows({}, "song"));
}

TEST_F(TreeWindow, ADoubleClickOnADocumentOpensItsPreviewInTheSameFolder)
{
    desk().doubleClick(placeOf("movie"));
    ASSERT_TRUE(closePreview());
    EXPECT_TRUE(shows({}, "movie"));
}

} // namespace
} // namespace tessera::test
