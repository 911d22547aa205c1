// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

#include <filesystem>

namespace tessera::test {
namespace {

using std::filesystem::exists;

class CollectingItems : public WholeProgram {
protected:
    /// With nothing else in the way of the pointer, and the picture as wide as it is beside a
    /// panel.
    QPoint placeBesidePanel(const std::string& path) const
    {
        constexpr double kPartThatIsLeft = 0.6;
        const QPoint place = placeOf(path);
        const int left = mainWindow().frame.left();
        return {left + static_cast<int>((place.x() - left) * kPartThatIsLeft), place.y()};
    }

    bool bothAreThere() const
    {
        return exists(home("Downloads/movie")) && exists(home("Downloads/song"));
    }

    bool noneIsThere() const
    {
        return !exists(home("Downloads/movie")) && !exists(home("Downloads/song"));
    }
};

TEST_F(CollectingItems, WhatWasCollectedGoesToTheTrashAndComesBackTogether)
{
    ASSERT_TRUE(scan("Downloads"));
    desk().click(placeOf("song"));
    desk().typeText("b");
    see("Move All to Trash…", "push button");
    desk().click(placeBesidePanel("movie"));
    desk().typeText("b");
    clickOn("Move All to Trash…", "push button");
    ASSERT_TRUE(acceptWarning());
    ASSERT_TRUE(eventually([this] { return noneIsThere(); }));
    EXPECT_TRUE(exists(home("Downloads/fonts/serif")));
    desk().typeKeys({key::kControl, 'z'});
    EXPECT_TRUE(eventually([this] { return bothAreThere(); }));
}

TEST_F(CollectingItems, ABoxIsDraggedIntoTheBasket)
{
    ASSERT_TRUE(scan("Downloads"));
    desk().typeKeys({key::kControl, 'b'});
    const Control basket = see("Move All to Trash…", "push button");
    desk().drag(placeBesidePanel("movie"), basket.frame.center() - QPoint(0, 100));
    EXPECT_TRUE(eventually([&] { return reader().again(basket)->isEnabled(); }));
    EXPECT_TRUE(bothAreThere());
}

} // namespace
} // namespace tessera::test
