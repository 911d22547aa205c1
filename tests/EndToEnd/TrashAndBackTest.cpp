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

TEST_F(WholeProgram, AnArchivedOriginalGoesToTheTrashAndComesBackByUndo)
{
    ASSERT_TRUE(scan("Downloads"));
    ASSERT_TRUE(pick("movie", MenuEntry::Compress));
    clickOn("Move Original to Trash", "push button");
    clickOn("Move To Trash", "push button");
    ASSERT_TRUE(eventually([this] { return !exists(home("Downloads/movie")); }));
    EXPECT_TRUE(exists(home("Downloads/movie.zip")));
    EXPECT_TRUE(exists(session->folders().pathOf("data/Trash/files/movie")));
    ASSERT_TRUE(becomesActive(XWindow::Kind::Main));
    desk().typeKeys({key::kControl, 'z'});
    EXPECT_TRUE(eventually([this] { return exists(home("Downloads/movie")); }));
}

TEST_F(WholeProgram, AnOriginalThatChangedSinceItWasArchivedStays)
{
    ASSERT_TRUE(scan("Downloads"));
    ASSERT_TRUE(pick("fonts", MenuEntry::Compress));
    see("Move Original to Trash", "push button");
    session->folders().writeFile("home/Downloads/fonts/new", "words");
    clickOn("Move Original to Trash", "push button");
    see("The original may have changed while it was archived, or since. It stays.");
    EXPECT_TRUE(exists(home("Downloads/fonts/serif")));
    EXPECT_TRUE(rejectDialog());
}

} // namespace
} // namespace tessera::test
