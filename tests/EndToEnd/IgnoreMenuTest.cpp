// SPDX-License-Identifier: MIT
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tessera::test {
namespace {

/// What the user leaves out of the picture of Documents.
class LeavingOut : public WholeProgram {
protected:
    void SetUp() override
    {
        WholeProgram::SetUp();
        if (!IsSkipped()) {
            ASSERT_TRUE(scan("Documents"));
        }
    }

    testing::AssertionResult showsWithoutDrafts()
    {
        auto picture = std::make_unique<ExpectedPicture>(home("Documents"), "");
        picture->leaveOut("drafts");
        return showsPicture(std::move(picture));
    }

    testing::AssertionResult showsWithoutHidden()
    {
        auto picture = std::make_unique<ExpectedPicture>(home("Documents"), "");
        picture->leaveOutHidden();
        return showsPicture(std::move(picture));
    }

    /// Types keys into the menu under the toolbar's button.
    void pickInToolbar(const std::vector<std::uint32_t>& keys)
    {
        clickOn("What the picture leaves out", "button menu");
        ASSERT_TRUE(opens(XWindow::Kind::Menu));
        for (const std::uint32_t keysym : keys) {
            desk().typeKey(keysym);
        }
        ASSERT_TRUE(closes(XWindow::Kind::Menu));
    }
};

TEST_F(LeavingOut, TheContextMenuLeavesAFolderOut)
{
    ASSERT_TRUE(pick("drafts", MenuEntry::Ignore));
    EXPECT_TRUE(showsWithoutDrafts());
}

TEST_F(LeavingOut, TheItemMenuLeavesTheSelectedFolderOut)
{
    desk().click(placeOf("drafts"));
    desk().typeKeys({key::kAlt, 'i'});
    ASSERT_TRUE(opens(XWindow::Kind::Menu));
    desk().typeKey('i');
    ASSERT_TRUE(closes(XWindow::Kind::Menu));
    EXPECT_TRUE(showsWithoutDrafts());
}

TEST_F(LeavingOut, TheToolbarsMenuListsTheFolder)
{
    ASSERT_TRUE(pick("drafts", MenuEntry::Ignore));
    ASSERT_TRUE(showsWithoutDrafts());
    pickInToolbar({key::kUp, key::kUp, key::kReturn});
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(LeavingOut, ShowingEverythingBringsTheFolderBack)
{
    ASSERT_TRUE(pick("drafts", MenuEntry::Ignore));
    ASSERT_TRUE(showsWithoutDrafts());
    pickInToolbar({'s'});
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(LeavingOut, HiddenFilesAreLeftOutOnDemand)
{
    pickInToolbar({'h'});
    EXPECT_TRUE(showsWithoutHidden());
}

TEST_F(LeavingOut, HiddenFilesStayLeftOutInTheNextScan)
{
    pickInToolbar({'h'});
    ASSERT_TRUE(showsWithoutHidden());
    desk().typeKeys({key::kAlt, key::kHome});
    ASSERT_TRUE(isHome());
    desk().doubleClick(see("Documents", "filler").frame.center());
    EXPECT_TRUE(showsWithoutHidden());
}

TEST_F(LeavingOut, AFolderIsBackInTheNextScan)
{
    ASSERT_TRUE(pick("drafts", MenuEntry::Ignore));
    ASSERT_TRUE(showsWithoutDrafts());
    desk().typeKeys({key::kAlt, key::kHome});
    ASSERT_TRUE(isHome());
    EXPECT_TRUE(scan("Documents"));
}

} // namespace
} // namespace tessera::test
