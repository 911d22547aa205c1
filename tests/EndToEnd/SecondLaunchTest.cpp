// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <algorithm>
#include <vector>

namespace tessera::test {
namespace {

/// The program is started a second time while it runs.
class SecondLaunch : public WholeProgram {
protected:
    /// Returns whether that process leaves everything to the first one.
    testing::AssertionResult handsOver(const std::vector<std::string>& arguments)
    {
        const std::unique_ptr<ChildProcess> second = session->start(arguments);
        const bool isDone = eventually([&] { return second->exitStatus().has_value(); });
        return isDone && second->exitStatus() == 0 ? testing::AssertionSuccess()
                                                   : failure("the second process goes on or fails");
    }
};

TEST_F(SecondLaunch, OpensItsFolderInTheWindowOfTheFirst)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(handsOver({home("Downloads")}));
    EXPECT_TRUE(showsTree("Downloads"));
}

TEST_F(SecondLaunch, OpensNoOtherWindow)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(handsOver({home("Downloads")}));
    ASSERT_TRUE(showsTree("Downloads"));
    const std::vector<XWindow> windows = desk().windows();
    EXPECT_EQ(std::ranges::count(windows, XWindow::Kind::Main, &XWindow::kind), 1);
}

TEST_F(SecondLaunch, BringsAMinimisedWindowBack)
{
    desk().minimise(mainWindow());
    ASSERT_TRUE(closes(XWindow::Kind::Main));
    ASSERT_TRUE(handsOver({}));
    EXPECT_TRUE(opens(XWindow::Kind::Main));
}

TEST_F(SecondLaunch, WithoutAFolderLeavesTheTreeAlone)
{
    ASSERT_TRUE(scan("Documents"));
    ASSERT_TRUE(handsOver({}));
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(SecondLaunch, OpensAFolderThatCannotBeOpenedToSaySo)
{
    ASSERT_TRUE(isHome());
    ASSERT_TRUE(handsOver({home("none")}));
    see("The folder cannot be scanned", "alert message");
    EXPECT_TRUE(acceptDialog());
    EXPECT_TRUE(isHome());
}

TEST_F(SecondLaunch, OpensAFolderFromTheHomeScreen)
{
    ASSERT_TRUE(isHome());
    ASSERT_TRUE(handsOver({home("Downloads")}));
    EXPECT_TRUE(showsTree("Downloads"));
}

} // namespace
} // namespace tessera::test
