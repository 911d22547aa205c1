// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

namespace tessera::test {
namespace {

TEST_F(WholeProgram, BeginsWithTheHomeScreen)
{
    EXPECT_TRUE(isHome());
}

TEST_F(WholeProgram, AClickOnALocationAndTheScanButtonLeadToItsTree)
{
    ASSERT_TRUE(choose("Documents"));
    clickOn("Scan", "push button");
    EXPECT_TRUE(showsTree("Documents"));
}

TEST_F(WholeProgram, ADoubleClickOnALocationLeadsToItsTree)
{
    desk().doubleClick(see("Downloads", "filler").frame.center());
    EXPECT_TRUE(showsTree("Downloads"));
}

TEST_F(WholeProgram, ReturnScansTheChosenLocation)
{
    ASSERT_TRUE(choose("Downloads"));
    desk().typeKey(key::kReturn);
    EXPECT_TRUE(showsTree("Downloads"));
}

/// On a screen whose pixels are half as large, which leaves 960 × 600 points.
class ProgramOnScaledScreen : public WholeProgram {
    void prepareSession() override { session->setVariable("QT_SCALE_FACTOR", "2"); }
};

TEST_F(ProgramOnScaledScreen, TheFirstWindowFits)
{
    ASSERT_TRUE(isHome());
    EXPECT_TRUE(desk().screen().contains(mainWindow().frame));
    EXPECT_GT(mainWindow().frame.width(), 1800) << "it is as large as it can be";
}

} // namespace
} // namespace tessera::test
