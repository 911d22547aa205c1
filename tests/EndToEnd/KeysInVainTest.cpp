// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"

namespace tessera::test {
namespace {

TEST_F(WholeProgram, AKeyThatDoesNothingTellsScreenReadersWhy)
{
    ASSERT_TRUE(scan("Downloads"));
    desk().typeKey(key::kDelete);
    const Control note = see("Select a file or a folder first.");
    EXPECT_EQ(note.role, "alert message");
    desk().typeKey(key::kRight);
    EXPECT_TRUE(isGone("Select a file or a folder first."));
}

TEST_F(WholeProgram, F5WithNothingSelectedScansAllAgain)
{
    ASSERT_TRUE(scan("Downloads"));
    session->folders().makeFile("home/Downloads/more", 700'000);
    desk().typeKey(key::kF5);
    EXPECT_TRUE(showsTree("Downloads"));
}

} // namespace
} // namespace tessera::test
