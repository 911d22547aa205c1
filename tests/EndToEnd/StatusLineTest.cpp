// SPDX-License-Identifier: MIT
// What the window says at its edges: the line at the lower one, and its title.
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <algorithm>

namespace tessera::test {
namespace {

class WindowEdges : public WholeProgram {
protected:
    /// Waits until assistive technology finds a line that begins like this.
    testing::AssertionResult tells(const std::string& beginning)
    {
        return eventually([&] {
            return std::ranges::any_of(reader().all("label"), [&](const Control& label) {
                return label.name.starts_with(beginning);
            });
        })
            ? testing::AssertionSuccess()
            : failure("nothing begins with '" + beginning + "'");
    }

    testing::AssertionResult isTitled(const std::string& title)
    {
        return eventually([&] { return mainWindow().title == title; })
            ? testing::AssertionSuccess()
            : failure("the title is '" + mainWindow().title + "'");
    }
};

TEST_F(WindowEdges, TheLowerOneTellsOfTheScannedFolderThenOfWhatTheKeysSelect)
{
    ASSERT_TRUE(scan("Documents"));
    EXPECT_TRUE(tells("Documents, 1.4 MB, 4 items"));
    desk().typeKey(key::kDown);
    EXPECT_TRUE(tells("drafts, 504 KB, 2 items, 37.0% of Documents"));
}

TEST_F(WindowEdges, TheLowerOneTellsOfWhatIsUnderThePointer)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(hover("report"));
    EXPECT_TRUE(tells("report, 401 KB, 29.5% of Documents"));
    desk().movePointer(beside());
    EXPECT_TRUE(tells("Documents, "));
}

TEST_F(WindowEdges, TheLowerOneStaysHiddenOverARestart)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(tells("Documents, "));
    desk().typeKeys({key::kAlt, 'v'});
    ASSERT_TRUE(opens(XWindow::Kind::Menu));
    desk().typeText("l");
    ASSERT_TRUE(isGone("Status line"));
    EXPECT_TRUE(showsTree("Documents"));
    ASSERT_TRUE(quits());
    launch();
    ASSERT_TRUE(scan("Documents"));
    EXPECT_FALSE(reader().find("Status line").has_value());
}

TEST_F(WindowEdges, TheTitleNamesWhatIsShown)
{
    EXPECT_TRUE(isTitled("Tessera"));
    ASSERT_TRUE(scan("Documents"));
    EXPECT_TRUE(isTitled("Documents — Tessera"));
    desk().doubleClick(placeOf("drafts"));
    EXPECT_TRUE(isTitled("drafts — Tessera"));
    desk().typeKeys({key::kAlt, key::kHome});
    EXPECT_TRUE(isTitled("Tessera"));
}

TEST_F(WindowEdges, TheTitlesOfOtherWindowsNameTheProgramToo)
{
    desk().typeKeys({key::kControl, ','});
    ASSERT_TRUE(opens(XWindow::Kind::Dialog));
    EXPECT_TRUE(eventually(
        [&] { return desk().window(XWindow::Kind::Dialog)->title == "Preferences — Tessera"; }));
    EXPECT_TRUE(rejectDialog());
}

} // namespace
} // namespace tessera::test
