// SPDX-License-Identifier: MIT
#include "EndToEnd/Desk/Eventually.h"
#include "EndToEnd/Session/TreeWindowFixture.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/RunProgram.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

using std::filesystem::exists;

TEST_F(TreeWindow, ARescanFindsWhatCameSince)
{
    tree.makeFile("docs/more", 500'000);
    tree.removeFile("docs/notes");
    ASSERT_TRUE(pick("docs", MenuEntry::RescanFolder));
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, CompressingPutsAnArchiveBesideTheItemAndIntoThePicture)
{
    ASSERT_TRUE(pick("movie", MenuEntry::Compress));
    ASSERT_TRUE(closeResult());
    ASSERT_TRUE(exists(tree.pathOf("movie.zip")));
    EXPECT_TRUE(shows({}, "movie"));
}

TEST_F(TreeWindow, TheArchiveHoldsTheItem)
{
    ASSERT_TRUE(pick("movie", MenuEntry::Compress));
    ASSERT_TRUE(closeResult());
    const ProgramResult listing
        = runProgram("python3", {"-m", "zipfile", "--list", tree.pathOf("movie.zip")});
    EXPECT_THAT(listing.standardOutput, testing::ContainsRegex("movie .* 600000\n"));
}

TEST_F(TreeWindow, MovingToTheTrashTakesTheItemFromThePictureAndTheFolder)
{
    ASSERT_TRUE(pick("song", MenuEntry::MoveToTrash));
    ASSERT_TRUE(acceptWarning());
    ASSERT_TRUE(eventually([&] { return !exists(tree.pathOf("song")); }));
    EXPECT_TRUE(shows());
}

TEST_F(TreeWindow, WhatWasMovedToTheTrashIsInTheTrash)
{
    ASSERT_TRUE(pick("docs", MenuEntry::MoveToTrash));
    ASSERT_TRUE(acceptWarning());
    const std::string trash = program->dataFolder() + "/Trash";
    ASSERT_TRUE(eventually([&] { return exists(trash + "/files/docs/drafts/first"); }));
    EXPECT_THAT(
        fileContent(trash + "/info/docs.trashinfo"),
        testing::HasSubstr("Path=" + tree.pathOf("docs") + '\n'));
}

TEST_F(TreeWindow, WhatWasMovedToTheTrashComesBackAndGoesAgain)
{
    ASSERT_TRUE(pick("docs", MenuEntry::MoveToTrash));
    ASSERT_TRUE(acceptWarning());
    ASSERT_TRUE(eventually([&] { return !exists(tree.pathOf("docs")); }));
    ASSERT_TRUE(shows());

    desk().typeKeys({key::kControl, 'z'});
    ASSERT_TRUE(eventually([&] { return exists(tree.pathOf("docs/drafts/first")); }));
    ASSERT_TRUE(shows());

    desk().typeKeys({key::kControl, key::kShift, 'z'});
    ASSERT_TRUE(eventually([&] { return !exists(tree.pathOf("docs")); }));
    ASSERT_TRUE(shows());
    EXPECT_TRUE(exists(program->dataFolder() + "/Trash/files/docs/drafts/first"));
}

TEST_F(TreeWindow, OneActionFollowsTheOther)
{
    ASSERT_TRUE(hover("docs/report"));
    desk().click(placeOf("docs/report"));
    ASSERT_TRUE(shows({}, "docs/report"));

    desk().doubleClick(placeOf("docs"));
    ASSERT_TRUE(shows("docs"));

    tree.makeFile("docs/drafts/third", 300'000);
    ASSERT_TRUE(pick("docs/drafts", MenuEntry::RescanFolder));
    ASSERT_TRUE(shows("docs"));

    ASSERT_TRUE(pick("docs/drafts/third", MenuEntry::Compress));
    ASSERT_TRUE(closeResult());
    ASSERT_TRUE(exists(tree.pathOf("docs/drafts/third.zip")));
    ASSERT_TRUE(shows("docs", "docs/drafts/third"));

    ASSERT_TRUE(pick("docs/notes", MenuEntry::MoveToTrash));
    ASSERT_TRUE(acceptWarning());
    ASSERT_TRUE(eventually([&] { return !exists(tree.pathOf("docs/notes")); }));
    ASSERT_TRUE(shows("docs"));

    desk().click(program->pathIcons().at(0));
    ASSERT_TRUE(shows());
    EXPECT_TRUE(hover("movie"));
}

} // namespace
} // namespace tessera::test
