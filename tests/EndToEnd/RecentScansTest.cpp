// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

namespace tessera::test {
namespace {

constexpr int kRowHeight = 48;

/// The home screen after Documents and then Downloads were scanned.
class RecentScans : public WholeProgram {
protected:
    void SetUp() override
    {
        WholeProgram::SetUp();
        if (IsSkipped()) {
            return;
        }
        for (const char* location : {"Documents", "Downloads"}) {
            ASSERT_TRUE(scan(location));
            desk().typeKeys({key::kAlt, key::kHome});
            ASSERT_TRUE(isHome());
        }
    }

    /// The middle of a row of the list, counted from 0.
    QPoint row(int index)
    {
        const QRect list = see("Recent scans", "list").frame;
        return {list.center().x(), list.top() + kRowHeight / 2 + index * kRowHeight};
    }
};

TEST_F(RecentScans, ReturnScansTheLatestAgain)
{
    session->folders().makeFile("home/Downloads/album", 450'000);
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(showsTree("Downloads"));
}

TEST_F(RecentScans, ADoubleClickOnARowScansThatFolder)
{
    desk().doubleClick(row(1));
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(RecentScans, TheArrowKeysChooseAnother)
{
    desk().typeKey(key::kDown);
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(RecentScans, AChosenLocationTakesTheirPlace)
{
    ASSERT_TRUE(choose("Documents"));
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(RecentScans, ClearingTakesThemFromTheList)
{
    ASSERT_FALSE(reader().all("list item").empty());
    clickOn("Clear recent scans", "push button");
    EXPECT_TRUE(eventually([this] { return reader().all("list item").empty(); }));
}

} // namespace
} // namespace tessera::test
