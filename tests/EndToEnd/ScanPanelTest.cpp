// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <gmock/gmock.h>

#include <csignal>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

constexpr int kPanelHeight = 230;
constexpr int kHomeShrinks = 174;

/// A scan that waits in the middle of a folder until the test lets it go.
class ScanPanel : public WholeProgram {
protected:
    void SetUp() override
    {
        WholeProgram::SetUp();
        if (!IsSkipped()) {
            launchGated();
        }
    }

    /// Chooses a location whose scan comes no further than to that folder.
    void scanUpTo(const std::string& location, const std::string& folder)
    {
        gate.hold(home(location + folder));
        desk().doubleClick(see(location, "filler").frame.center());
        ASSERT_TRUE(eventually([this] { return gate.isReached(); })) << log();
    }

    Control panel() { return see("Progress of the scan", "filler"); }

    /// The panel's upper edge is so far above the lower edge of the window.
    int risenBy(const Control& panel) const
    {
        return mainWindow().frame.bottom() + 1 - panel.frame.top();
    }

    testing::AssertionResult isSlidIn()
    {
        const Control seen = panel();
        return eventually([&] {
            const std::optional<Control> now = reader().again(seen);
            return now && risenBy(*now) == kPanelHeight;
        })
            ? testing::AssertionSuccess()
            : failure("the panel does not come in");
    }
};

TEST_F(ScanPanel, TheSystemEndsTheProgramInTheMiddleOfAScan)
{
    scanUpTo("Documents", "/drafts");
    program->signal(SIGTERM);
    EXPECT_EQ(program->waitForExit(), 0) << log();
}

TEST_F(ScanPanel, TakesItsPlaceAtTheBottomOfTheWindow)
{
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    const QRect window = mainWindow().frame;
    EXPECT_EQ(
        panel().frame,
        QRect(window.left(), window.bottom() + 1 - kPanelHeight, window.width(), kPanelHeight));
}

TEST_F(ScanPanel, SlidesInFromBelow)
{
    // Two looks at it may be further apart than its way takes; then it has to come once more.
    bool wasOnItsWay = false;
    const bool wasSeen = eventually([&] {
        scanUpTo("Documents", "/drafts");
        std::optional<Control> now = panel();
        while (now && risenBy(*now) < kPanelHeight) {
            wasOnItsWay = wasOnItsWay || risenBy(*now) > 0;
            now = reader().again(*now);
        }
        desk().typeKey(key::kEscape);
        const bool isBack = isHome();
        gate.letGo();
        return isBack && wasOnItsWay;
    });
    EXPECT_TRUE(wasSeen) << log();
}

TEST_F(ScanPanel, LeavesTheHomeScreenTheRoomAboveAllButItsLowestPart)
{
    const Control grid = see("Disks and locations", "filler");
    const Control openButton = see("Open Folder…", "push button");
    const Control list = see("Recent scans", "list");
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    EXPECT_EQ(reader().again(grid)->frame.topLeft(), grid.frame.topLeft());
    EXPECT_EQ(reader().again(openButton)->frame, openButton.frame);
    EXPECT_EQ(reader().again(list)->frame.bottom(), list.frame.bottom() - kHomeShrinks);
}

TEST_F(ScanPanel, TakesTheButtonsOfTheHomeScreenAway)
{
    scanUpTo("Documents", "/drafts");
    EXPECT_TRUE(isGone("Scan"));
    EXPECT_TRUE(isGone("Clear recent scans"));
}

TEST_F(ScanPanel, LeavesTheHomeScreenDisabled)
{
    scanUpTo("Documents", "/drafts");
    EXPECT_FALSE(see("Open Folder…", "push button").isEnabled());
    EXPECT_FALSE(see("Recent scans", "list").isEnabled());
}

TEST_F(ScanPanel, HasItsCancelButtonInView)
{
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    EXPECT_TRUE(mainWindow().frame.contains(see("Cancel", "push button").frame));
}

TEST_F(ScanPanel, TellsWhatIsScanned)
{
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    std::vector<std::string> texts;
    for (const Control& text : reader().all()) {
        if (panel().frame.contains(text.frame)) {
            texts.push_back(text.name);
        }
    }
    EXPECT_THAT(texts, testing::Contains("Documents"));
}

TEST_F(ScanPanel, GivesWayToTheTreeWhenTheScanIsOver)
{
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    gate.letGo();
    EXPECT_TRUE(showsTree("Documents"));
    EXPECT_TRUE(isGone("Cancel"));
}

TEST_F(ScanPanel, EscapeInMidScanBringsTheHomeScreenBack)
{
    scanUpTo("Documents", "/drafts");
    desk().typeKey(key::kEscape);
    EXPECT_TRUE(isHome());
}

TEST_F(ScanPanel, TheCancelButtonBringsTheHomeScreenBack)
{
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    clickOn("Cancel", "push button");
    EXPECT_TRUE(isHome());
}

TEST_F(ScanPanel, ACancelledScanLeavesTheHomeScreenAsItWas)
{
    const Control list = see("Recent scans", "list");
    scanUpTo("Documents", "/drafts");
    ASSERT_TRUE(isSlidIn());
    desk().typeKey(key::kEscape);
    ASSERT_TRUE(isHome());
    EXPECT_EQ(reader().again(list)->frame, list.frame);
    EXPECT_TRUE(reader().again(list)->isEnabled());
}

TEST_F(ScanPanel, ANewScanWorksAfterACancelledOne)
{
    scanUpTo("Documents", "/drafts");
    desk().typeKey(key::kEscape);
    ASSERT_TRUE(isHome());
    gate.letGo();
    EXPECT_TRUE(scan("Downloads"));
}

TEST_F(ScanPanel, ANewScanWorksWhileTheCancelledOneIsStillStuck)
{
    scanUpTo("Documents", "/drafts");
    desk().typeKey(key::kEscape);
    ASSERT_TRUE(isHome());
    EXPECT_TRUE(scan("Downloads"));
}

TEST_F(ScanPanel, AScanThatIsStuckDoesNotKeepTheProgramFromEnding)
{
    scanUpTo("Documents", "/drafts");
    EXPECT_TRUE(quits());
    program.reset();
}

} // namespace
} // namespace tessera::test
