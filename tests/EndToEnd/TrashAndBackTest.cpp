// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/WholeProgramFixture.h"
#include "support/Machine/RunProgram.h"

#include <filesystem>

namespace tessera::test {
namespace {

using std::filesystem::exists;

TEST_F(WholeProgram, WhatItMovedToTheTrashComesBackFromThere)
{
    ASSERT_TRUE(scan("Downloads"));
    desk().click(placeOf("movie"));
    desk().typeKey(key::kDelete);
    ASSERT_TRUE(acceptWarning());
    ASSERT_TRUE(eventually([this] { return !exists(home("Downloads/movie")); }));
    const ProgramResult restored = runProgram(
        "env",
        {"XDG_DATA_HOME=" + session->folders().pathOf("data"),
         "sh",
         "-c",
         "echo 0 | trash-restore \"$0\"",
         home("Downloads")});
    EXPECT_TRUE(exists(home("Downloads/movie"))) << restored.standardError;
}

} // namespace
} // namespace tessera::test
