// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/TreeWindowFixture.h"

namespace tessera::test {
namespace {

using Kind = XWindow::Kind;

TEST_F(TreeWindow, ShowsTheFolderAfterItsScan)
{
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, LaysThePictureOutAnewWhenItIsResized)
{
    const QRect wider(100, 50, 1500, 500);
    desk().setFrame(mainWindow(), wider);
    ASSERT_TRUE(eventually([&] { return program->map().value_or(QRect()).width() == 1500; }));
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, AClickOnADocumentSelectsIt)
{
    desk().click(placeOf("movie"));
    EXPECT_TRUE(shows({}, "movie"));
}

TEST_F(TreeWindow, AClickElsewhereMovesTheSelection)
{
    desk().click(placeOf("movie"));
    ASSERT_TRUE(shows({}, "movie"));
    desk().click(placeOf("docs/drafts/second"));
    EXPECT_TRUE(shows({}, "docs/drafts/second"));
}

TEST_F(TreeWindow, ARightClickSelectsAndOpensAMenuThatEscapeCloses)
{
    desk().click(placeOf("docs/report"), XDesk::Button::Right);
    ASSERT_TRUE(opens(Kind::Menu));
    desk().typeKey(key::kEscape);
    ASSERT_TRUE(closes(Kind::Menu));
    EXPECT_TRUE(shows({}, "docs/report"));
}

TEST_F(TreeWindow, HoveringABoxShowsATooltipBesideThePointer)
{
    ASSERT_TRUE(hover("song"));
    constexpr QPoint kBelowPointer(0, 20);
    EXPECT_EQ(program->window(Kind::Tooltip)->frame.topLeft(), placeOf("song") + kBelowPointer);
}

TEST_F(TreeWindow, TheTooltipLeavesTheKeysToTheWindow)
{
    ASSERT_TRUE(hover("song"));
    EXPECT_TRUE(desk().isActive(mainWindow()));
}

TEST_F(TreeWindow, TheTooltipGoesWhenThePointerLeavesTheWindow)
{
    ASSERT_TRUE(hover("song"));
    desk().movePointer(beside());
    EXPECT_TRUE(closes(Kind::Tooltip));
}

TEST(WindowOnALargeFolder, CanBeClosedDuringTheScan)
{
    DrivenProgram program("/usr");
    ASSERT_TRUE(eventually([&] { return program.window(Kind::Main).has_value(); }));
    program.desk().requestClose(*program.window(Kind::Main));
    ASSERT_TRUE(eventually([&] { return program.process().exitStatus().has_value(); }));
    EXPECT_EQ(program.process().exitStatus(), 0) << program.log();
}

} // namespace
} // namespace tessera::test
