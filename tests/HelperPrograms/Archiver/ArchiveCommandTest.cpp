// SPDX-License-Identifier: MIT
// The archiver as others start it: what it says, how it exits, what it leaves alone.
#include "HelperPrograms/Archiver/ArchiveFixture.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

constexpr unsigned kPermissionBits = 07777;

unsigned permissionsOf(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0 ? values.st_mode & kPermissionBits : 0;
}

bool exists(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0;
}

/// The kinds and paths alone.
std::vector<std::string> pathsOfArchive(const std::string& archive)
{
    std::vector<std::string> paths;
    for (const std::string& line : linesOfArchive(archive)) {
        paths.push_back(line.substr(0, line.find(" mode=")));
    }
    return paths;
}

class ArchiveCommand : public ArchiveFixture { };

TEST_F(ArchiveCommand, SaysNothingWhenAllIsWellButWhichFileItMade)
{
    const ProgramResult result = archiveX();
    EXPECT_EQ(result.exitStatus, 0);
    struct stat values { };
    ASSERT_EQ(::lstat(target.c_str(), &values), 0);
    EXPECT_THAT(result.standardOutput, EndsWith(' ' + std::to_string(values.st_ino) + '\n'));
    EXPECT_EQ(result.standardError, "");
}

TEST_F(ArchiveCommand, SaysWithWhichLibrariesItRuns)
{
    const ProgramResult result = runProgram(built::archiver(), {"--libraries"});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(
        result.standardOutput, testing::MatchesRegex("libarchive [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(ArchiveCommand, EntriesAreRootedAtTheFoldersName)
{
    archiveX();
    EXPECT_THAT(pathsOfArchive(target), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, AFileAloneIsAnArchiveOfOneEntry)
{
    EXPECT_EQ(makeArchive(tree.pathOf("X/file"), target).exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(target), ElementsAre("file file"));
}

TEST_F(ArchiveCommand, ALinkIsArchivedItselfEvenWithASlashBehindIt)
{
    tree.makeSymbolicLink("link", "X");
    EXPECT_EQ(makeArchive(tree.pathOf("link/"), target).exitStatus, 0);
    EXPECT_THAT(linesOfArchive(target), ElementsAre("link link -> X"));
}

TEST_F(ArchiveCommand, SlashesAtTheEndOfTheSourceMeanNothing)
{
    EXPECT_EQ(makeArchive(source + "//", target).exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(target), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, TheCurrentFolderIsArchivedUnderItsName)
{
    const ProgramResult result = runTool(
        "sh",
        {"-c",
         R"(cd "$1" && exec "$2" -c -k --sequesterRsrc . ../X.zip)",
         "sh",
         source,
         test::built::archiver()});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_THAT(pathsOfArchive(tree.pathOf("X.zip")), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, BadUsageIsSaidInOneLine)
{
    const ProgramResult result = runProgram(test::built::archiver(), {"-x", source});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_EQ(
        result.standardError,
        "usage: tessera-ditto -c -k --sequesterRsrc [--folder | --file] SOURCE TARGET\n");
}

TEST_F(ArchiveCommand, AnExistingFileStaysAsItIs)
{
    out.writeFile("X.zip", "precious");
    const ProgramResult result = archiveX();
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.standardError, "tessera-ditto: cannot create '" + target + "': File exists\n");
    EXPECT_EQ(fileContent(target), "precious");
}

TEST_F(ArchiveCommand, ALinkInTheArchivesPlaceIsNotFollowed)
{
    out.makeSymbolicLink("X.zip", "elsewhere");
    EXPECT_EQ(archiveX().exitStatus, 3);
    EXPECT_FALSE(exists(out.pathOf("elsewhere")));
}

TEST_F(ArchiveCommand, ASourceThatIsNotThereLeavesNoArchive)
{
    const ProgramResult result = makeArchive(tree.pathOf("none"), target);
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(
        result.standardError,
        "tessera-ditto: cannot read '" + tree.pathOf("none") + "': No such file or directory\n");
    EXPECT_FALSE(exists(target));
}

TEST_F(ArchiveCommand, AFolderForTheArchiveThatIsNotThereIsSaid)
{
    const ProgramResult result = makeArchive(source, out.pathOf("none/X.zip"));
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(
        result.standardError,
        "tessera-ditto: cannot create '" + out.pathOf("none/X.zip")
            + "': No such file or directory\n");
}

TEST_F(ArchiveCommand, TheRootFolderIsRefused)
{
    const ProgramResult result = makeArchive("/", target);
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.standardError, "tessera-ditto: cannot read '/': Invalid argument\n");
}

TEST_F(ArchiveCommand, AnArchiveInsideItsSourceDoesNotHoldItself)
{
    EXPECT_EQ(makeArchive(source, tree.pathOf("X/X.zip")).exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(tree.pathOf("X/X.zip")), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, AnArchiveInsideItsSourceIsFoundUnderAnyPath)
{
    EXPECT_EQ(makeArchive(source, tree.pathOf("X/../X/X.zip")).exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(tree.pathOf("X/X.zip")), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, AWayToTheSourceThatLeadsOverALinkIsNotTaken)
{
    tree.makeSymbolicLink("link", "X");
    const ProgramResult result = makeArchive(tree.pathOf("link/file"), target);
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_FALSE(exists(target));
}

TEST_F(ArchiveCommand, AWayToTheArchiveThatLeadsOverALinkIsNotTaken)
{
    tree.makeSymbolicLink("link", "X");
    const ProgramResult result = makeArchive(source, tree.pathOf("link/X.zip"));
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_FALSE(exists(tree.pathOf("X/X.zip")));
}

TEST_F(ArchiveCommand, TheSourceStaysAsItIs)
{
    const auto before = linesOfTree(source);
    archiveX();
    EXPECT_EQ(linesOfTree(source), before);
}

TEST_F(ArchiveCommand, AFileThatMayNotBeReadIsSaidAndAllElseArchived)
{
    tree.writeFile("X/secret", "secret");
    tree.setMode("X/secret", 0);
    const ProgramResult result = makeArchiveWithoutRights(source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, "tessera-ditto: cannot archive 'X/secret': Permission denied\n");
    EXPECT_THAT(pathsOfArchive(part), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, OfSeveralThatMayNotBeReadTheFirstIsNamed)
{
    for (const char* name : {"X/a", "X/b", "X/c"}) {
        tree.makeFolder(name);
        tree.setMode(name, 0);
    }
    const ProgramResult result = makeArchiveWithoutRights(source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError,
        "tessera-ditto: cannot archive 'X/a': Permission denied (and 2 more)\n");
    EXPECT_THAT(pathsOfArchive(part), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, AFolderThatMayBeListedButNotEnteredIsSaid)
{
    tree.makeFolder("X/listed");
    tree.makeFile("X/listed/file");
    tree.setMode("X/listed", 0444);
    const ProgramResult result = makeArchiveWithoutRights(source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, "tessera-ditto: cannot archive 'X/listed/file': Permission denied\n");
    EXPECT_THAT(pathsOfArchive(part), ElementsAre("folder X", "file X/file", "folder X/listed"));
}

TEST_F(ArchiveCommand, ANameWithALineBreakStaysOneLine)
{
    tree.makeFolder("X/two\nlines");
    tree.setMode("X/two\nlines", 0);
    EXPECT_EQ(
        makeArchiveWithoutRights(source, target).standardError,
        "tessera-ditto: cannot archive 'X/two\\x0alines': Permission denied\n");
}

TEST_F(ArchiveCommand, WhatHasNoContentIsLeftOutWithoutFailing)
{
    tree.makeFifo("X/a-fifo");
    tree.makeSocket("X/a-socket");
    const ProgramResult result = archiveX();
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(
        result.standardError,
        "tessera-ditto: left out 'X/a-fifo', which has no content (and 1 more)\n");
    EXPECT_THAT(pathsOfArchive(target), ElementsAre("folder X", "file X/file"));
}

TEST_F(ArchiveCommand, AFifoItselfIsNothingToArchive)
{
    tree.makeFifo("fifo");
    const ProgramResult result = makeArchive(tree.pathOf("fifo"), target);
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_THAT(result.standardError, EndsWith("/fifo': Operation not supported\n"));
    EXPECT_FALSE(exists(target));
}

TEST_F(ArchiveCommand, TheArchiveOfAPrivateFolderIsPrivate)
{
    tree.setMode("X", 0700);
    archiveX();
    EXPECT_EQ(permissionsOf(target), 0600U);
}

TEST_F(ArchiveCommand, TheArchiveOfAWriteProtectedFolderIsNot)
{
    tree.setMode("X", 0500);
    archiveX();
    EXPECT_EQ(permissionsOf(target), 0600U);
}

TEST_F(ArchiveCommand, PathsLongerThanTheSystemTakesWork)
{
    tree.makeChain(3000);
    std::string deep = tree.path();
    for (int i = 0; i < 3000; ++i) {
        deep += "/d";
    }
    EXPECT_EQ(makeArchive(deep, deep + ".zip").exitStatus, 0);
    EXPECT_EQ(makeArchive(deep + ".zip", target).exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(target), ElementsAre(HasSubstr("file d.zip")));
}

TEST_F(ArchiveCommand, WhatIsMountedInsideIsAnEmptyFolder)
{
    tree.makeFolder("X/mounted");
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "no mounts can be made here";
    }
    OwnMounts mounts;
    mounts.mountMemory(tree.pathOf("X/mounted"));
    tree.makeFile("X/mounted/inside");
    EXPECT_EQ(archiveX().exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(target), ElementsAre("folder X", "file X/file", "folder X/mounted"));
}

TEST_F(ArchiveCommand, WhatIsMountedItselfIsArchived)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "no mounts can be made here";
    }
    OwnMounts mounts;
    mounts.mountMemory(source);
    tree.makeFile("X/inside");
    EXPECT_EQ(archiveX().exitStatus, 0);
    EXPECT_THAT(pathsOfArchive(target), ElementsAre("folder X", "file X/inside"));
}

TEST_F(ArchiveCommand, AFullDiskIsSaidInOneLine)
{
    tree.writeFile("X/noise", noise(1'000'000));
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "no mounts can be made here";
    }
    OwnMounts mounts;
    mounts.mountMemory(out.path(), "size=256k");
    const ProgramResult result = archiveX();
    EXPECT_EQ(result.exitStatus, 4);
    EXPECT_EQ(
        result.standardError,
        "tessera-ditto: cannot write '" + target + "': No space left on device\n");
}

TEST_F(ArchiveCommand, ALimitOnTheSizeOfFilesIsAFailureAndTheFragmentStays)
{
    tree.makeSparseFile("X/large", off_t{1} << 32);
    const ProgramResult result = runTool(
        "sh",
        {"-c",
         R"(ulimit -f 1; exec "$1" -c -k --sequesterRsrc "$2" "$3")",
         "sh",
         test::built::archiver(),
         source,
         target});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, "tessera-ditto: cannot write '" + target + "': File too large\n");
    EXPECT_TRUE(exists(part));
}

} // namespace
} // namespace tessera::test
