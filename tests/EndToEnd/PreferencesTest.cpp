// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Desk/PixelColors.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

namespace tessera::test {
namespace {

constexpr int kShortTooltip = 42;

/// The window of preferences, opened and used by keys, over the tree of Documents.
class PreferencesWindow : public WholeProgram {
protected:
    void SetUp() override
    {
        WholeProgram::SetUp();
        if (!IsSkipped()) {
            ASSERT_TRUE(scan("Documents"));
        }
    }

    /// Goes so many choices up from what is under the pointer by default.
    void lessUnderThePointer(int choices)
    {
        openPreferences();
        desk().typeKeys({key::kAlt, 'p'});
        for (int i = 0; i < choices; ++i) {
            desk().typeKey(key::kUp);
        }
        ASSERT_TRUE(rejectDialog());
    }

    void openPreferences()
    {
        desk().typeKeys({key::kControl, ','});
        ASSERT_TRUE(opens(XWindow::Kind::Dialog));
        ASSERT_TRUE(becomesActive(XWindow::Kind::Dialog));
    }
};

TEST_F(PreferencesWindow, BeginsWithTheWholeTooltip)
{
    ASSERT_TRUE(hover("report"));
    EXPECT_GT(desk().window(XWindow::Kind::Tooltip)->frame.height(), kShortTooltip);
}

TEST_F(PreferencesWindow, AShorterTooltipIsShortAtOnce)
{
    lessUnderThePointer(1);
    ASSERT_TRUE(hover("report"));
    EXPECT_EQ(desk().window(XWindow::Kind::Tooltip)->frame.height(), kShortTooltip);
}

TEST_F(PreferencesWindow, NoTooltipComesAtOnceWhenNoneIsWanted)
{
    lessUnderThePointer(2);
    desk().movePointer(placeOf("report"));
    desk().click(placeOf("report"));
    ASSERT_TRUE(eventually([this] {
        return isLike(
            desk().picture(QRect(placeOf("report") + QPoint(0, -20), QSize(1, 1))).pixel(0, 0),
            0xFF3875D7);
    }));
    EXPECT_FALSE(desk().window(XWindow::Kind::Tooltip).has_value());
}

TEST_F(PreferencesWindow, ShowsTheStoredChoiceWhenItIsOpenedAgain)
{
    lessUnderThePointer(1);
    openPreferences();
    EXPECT_TRUE(reader().find("Name and size").has_value());
    EXPECT_TRUE(rejectDialog());
}

TEST_F(PreferencesWindow, AnUntickedWarningIsNotGivenAtOnce)
{
    openPreferences();
    const Control box = see("Hidden items", "check box");
    desk().click(box.frame.center());
    ASSERT_TRUE(eventually([&] { return !reader().again(box)->isChecked(); }));
    ASSERT_TRUE(rejectDialog());
    desk().click(placeOf(".outline"));
    desk().typeKey(key::kDelete);
    ASSERT_TRUE(acceptWarning());
    EXPECT_TRUE(showsTree("Documents"));
}

} // namespace
} // namespace tessera::test
