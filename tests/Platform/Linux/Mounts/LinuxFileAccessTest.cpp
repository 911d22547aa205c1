// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxFileAccess.h"

#include "support/Machine/DeadFileSystem.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tessera {
namespace {

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t entriesIn(const std::string& path)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path), {}));
}

TEST(LinuxFileAccess, AReadableFolderHasNoError)
{
    const test::TempTree tree;
    EXPECT_FALSE(LinuxFileAccess().checkFolder(tree.path()));
}

TEST(LinuxFileAccess, SaysThatAFolderIsNotThere)
{
    const test::TempTree tree;
    EXPECT_EQ(
        LinuxFileAccess().checkFolder(tree.pathOf("none")), std::errc::no_such_file_or_directory);
}

TEST(LinuxFileAccess, SaysThatAFileOrAFifoIsNoFolder)
{
    const test::TempTree tree;
    tree.makeFile("file");
    tree.makeFifo("fifo");
    EXPECT_EQ(LinuxFileAccess().checkFolder(tree.pathOf("file")), std::errc::not_a_directory);
    EXPECT_EQ(LinuxFileAccess().checkFolder(tree.pathOf("fifo")), std::errc::not_a_directory);
}

TEST(LinuxFileAccess, AFolderIsReadableThroughALinkOnlyWhereLinksAreFollowed)
{
    const test::TempTree tree;
    tree.makeFolder("real");
    tree.makeFolder("real/inner");
    tree.makeSymbolicLink("link", "real");
    const std::string root = LinuxFileAccess().absolutePath(tree.path());

    EXPECT_FALSE(LinuxFileAccess().checkFolder(root + "/link"));
    EXPECT_EQ(
        LinuxFileAccess().checkFolderWithoutLinks(root + "/link"), std::errc::not_a_directory);
    EXPECT_EQ(
        LinuxFileAccess().checkFolderWithoutLinks(root + "/link/inner"),
        std::errc::too_many_symbolic_link_levels);
    EXPECT_FALSE(LinuxFileAccess().checkFolderWithoutLinks(root + "/real/inner"));
}

TEST(LinuxFileAccess, SaysWithoutFollowingLinksThatAFolderIsNotThere)
{
    const test::TempTree tree;
    const std::string root = LinuxFileAccess().absolutePath(tree.path());

    EXPECT_EQ(
        LinuxFileAccess().checkFolderWithoutLinks(root + "/none"),
        std::errc::no_such_file_or_directory);
}

TEST(LinuxFileAccess, ResolvesSymbolicLinksInPaths)
{
    const test::TempTree tree;
    tree.makeFolder("real");
    tree.makeSymbolicLink("link", "real");
    const LinuxFileAccess files;
    EXPECT_EQ(files.absolutePath(tree.pathOf("link")), files.absolutePath(tree.pathOf("real")));
}

TEST(LinuxFileAccess, RelativePathsStartAtTheCurrentFolder)
{
    const std::string current = std::filesystem::canonical(".").string();
    EXPECT_EQ(LinuxFileAccess().absolutePath("."), current);
    EXPECT_EQ(LinuxFileAccess().absolutePath("none/at all"), current + "/none/at all");
}

TEST(LinuxFileAccess, PathsThatAreNotThereStayAsTheyAre)
{
    EXPECT_EQ(LinuxFileAccess().absolutePath("/no/such/\xFF"), "/no/such/\xFF");
}

TEST(LinuxFileAccess, WritesAFileWhateverItsName)
{
    const test::TempTree tree;
    for (const std::string& name : {std::string(255, 'x'), std::string("a\n\xFF")}) {
        EXPECT_FALSE(LinuxFileAccess().writeFile(tree.pathOf(name), "content"));
        EXPECT_EQ(contentOf(tree.pathOf(name)), "content");
    }
}

TEST(LinuxFileAccess, ReplacesWhatWasThere)
{
    const test::TempTree tree;
    tree.writeFile("file", "a longer old content");
    EXPECT_FALSE(LinuxFileAccess().writeFile(tree.pathOf("file"), "new"));
    EXPECT_EQ(contentOf(tree.pathOf("file")), "new");
    EXPECT_EQ(entriesIn(tree.path()), 1U);
}

TEST(LinuxFileAccess, InAHurryItSaysTheSameOfWhatAnswers)
{
    const test::TempTree tree;
    tree.makeSymbolicLink("link", ".");
    const LinuxFileAccess files(
        std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1)));
    EXPECT_FALSE(files.checkFolder(tree.path()));
    EXPECT_EQ(files.checkFolder(tree.pathOf("none")), std::errc::no_such_file_or_directory);
    EXPECT_EQ(files.absolutePath(tree.pathOf("link")), files.absolutePath(tree.path()));
}

TEST(LinuxFileAccess, InAHurryADeadFolderIsTimedOutAndKeepsItsPath)
{
    const auto questions = std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1));
    const test::DeadFileSystem dead;
    dead.swallow(*questions, "/proc/self", LinkMode::Follow);
    const LinuxFileAccess files(questions);
    EXPECT_EQ(files.checkFolder("/proc/self"), std::errc::timed_out);
    EXPECT_EQ(files.absolutePath("/proc/self"), "/proc/self");
}

TEST(LinuxFileAccess, InAHurryADeadFolderIsTimedOutWithoutFollowingLinksToo)
{
    const auto questions = std::make_shared<const FileSystemQuestions>(std::chrono::minutes(1));
    const test::DeadFileSystem dead;
    dead.swallow(*questions, "/proc/sys", LinkMode::Keep);
    EXPECT_EQ(
        LinuxFileAccess(questions).checkFolderWithoutLinks("/proc/sys"), std::errc::timed_out);
}

TEST(LinuxFileAccess, AFileThatCannotBeWrittenLeavesNothingBehind)
{
    const test::TempTree tree;
    tree.makeFolder("taken");
    tree.makeFile("taken/inside");
    EXPECT_EQ(LinuxFileAccess().writeFile(tree.pathOf("taken"), "x"), std::errc::is_a_directory);
    EXPECT_EQ(entriesIn(tree.path()), 1U);
}

TEST(LinuxFileAccess, SaysThatAFileCannotBeWrittenIntoAMissingFolder)
{
    const test::TempTree tree;
    EXPECT_EQ(
        LinuxFileAccess().writeFile(tree.pathOf("none/file"), "x"),
        std::errc::no_such_file_or_directory);
}

TEST(LinuxFileAccess, WhatItWritesIsReadableAsTheUserWantsNewFilesToBe)
{
    const test::TempTree tree;
    tree.makeFile("ordinary");
    EXPECT_FALSE(LinuxFileAccess().writeFile(tree.pathOf("written"), "x"));
    using std::filesystem::status;
    EXPECT_EQ(
        status(tree.pathOf("written")).permissions() & std::filesystem::perms::others_all,
        status(tree.pathOf("ordinary")).permissions() & std::filesystem::perms::others_all);
}

} // namespace
} // namespace tessera
