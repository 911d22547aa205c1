// SPDX-License-Identifier: MIT
// Archives read by three programs that others wrote: Python's zipfile, unzip and bsdtar.
#include "HelperPrograms/Archiver/Archives.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <string>
#include <string_view>

namespace tessera::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const std::string kNotText = "not\xFF\xFEtext";
const std::string kUmlauts = "gr\xC3\xB6\xC3\x9F"
                             "e\xE2\x82\xAC";
const std::string kAccented = "caf\xE9"; // the older character set of Western Europe
const std::string kLineBreak = "two\nlines\x01";

void setModified(const std::string& path, time_t seconds)
{
    const std::array<timespec, 2> times{{{seconds, 0}, {seconds, 0}}};
    ::utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW);
}

bool setAttribute(const std::string& path, const std::string& name, std::string_view value)
{
    return ::setxattr(path.c_str(), name.c_str(), value.data(), value.size(), 0) == 0;
}

/// A folder "X" with something of every kind.
class ReadBack : public testing::Test {
protected:
    ReadBack()
    {
        tree.makeFolder("X");
        tree.makeFolder("X/empty");
        tree.makeFolder("X/sub");
        tree.writeFile("X/sub/text", "The same line again. The same line again.\n");
        tree.makeFile("X/nothing");
        tree.makeSparseFile("X/holes", 3'000'000);
        tree.makeSymbolicLink("X/link", "sub/text");
        tree.makeSymbolicLink("X/dangling", "nowhere/at all");
        tree.makeSymbolicLink("X/up", "..");
        tree.makeHardLink("X/same", "X/sub/text");
        tree.setMode("X/sub/text", 0640);
        tree.setMode("X/nothing", 0755);
        setModified(tree.pathOf("X/sub/text"), 1'234'567'890);
        setModified(tree.pathOf("X/empty"), 1'111'111'110);
    }

    void archive() const
    {
        const ProgramResult result = makeArchive(source, target);
        ASSERT_EQ(result.exitStatus, 0) << result.standardError;
    }

    void expectSame(const std::string& extracted) const
    {
        EXPECT_EQ(linesOfTree(extracted), linesOfTree(source));
    }

    TempTree tree;
    TempTree out;
    std::string source = tree.pathOf("X");
    std::string target = out.pathOf("X.zip");
};

TEST_F(ReadBack, PythonReadsWhatIsOnTheDisk)
{
    archive();
    EXPECT_EQ(linesOfArchive(target), linesOfTree(source));
}

TEST_F(ReadBack, UnzipFindsNothingWrong)
{
    archive();
    const ProgramResult result = runTool("unzip", {"-t", target});
    EXPECT_EQ(result.exitStatus, 0) << result.standardOutput;
    EXPECT_THAT(result.standardOutput, HasSubstr("No errors detected"));
}

TEST_F(ReadBack, UnzipBringsEverythingBack)
{
    archive();
    EXPECT_EQ(runTool("unzip", {"-q", target, "-d", out.path()}).exitStatus, 0);
    expectSame(out.pathOf("X"));
}

TEST_F(ReadBack, BsdtarListsEverything)
{
    archive();
    const ProgramResult result = runTool("bsdtar", {"-tvf", target});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_THAT(result.standardOutput, HasSubstr("X/link -> sub/text\n"));
    EXPECT_THAT(result.standardOutput, testing::ContainsRegex("drwxr-xr-x .* X/empty/\n"));
    EXPECT_THAT(result.standardOutput, testing::ContainsRegex("-rw-r----- .* 42 .* X/sub/text\n"));
}

TEST_F(ReadBack, BsdtarBringsEverythingBack)
{
    archive();
    const ProgramResult result = runTool("bsdtar", {"-xpf", target, "-C", out.path()});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    expectSame(out.pathOf("X"));
}

TEST_F(ReadBack, NamesInUtf8AreMarkedAsSuch)
{
    tree.makeFile("X/" + kUmlauts, 5);
    archive();
    EXPECT_EQ(linesOfArchive(target), linesOfTree(source));
    EXPECT_THAT(
        runTool("unzip", {"-Z1", target}).standardOutput, HasSubstr("X/" + kUmlauts + "\n"));
}

TEST_F(ReadBack, PythonReadsNamesOfAnyBytes)
{
    tree.makeFile("X/" + kNotText, 5);
    tree.makeFile("X/" + kAccented, 6);
    tree.makeFolder("X/" + kLineBreak);
    tree.makeFile("X/" + kLineBreak + "/" + kUmlauts, 7);
    archive();
    EXPECT_EQ(linesOfArchive(target), linesOfTree(source));
}

TEST_F(ReadBack, UnzipBringsNamesOfAnyBytesBack)
{
    tree.makeFile("X/" + kNotText, 5);
    tree.makeFolder("X/" + kLineBreak);
    tree.makeFile("X/" + kLineBreak + "/" + kUmlauts, 7);
    archive();
    EXPECT_EQ(runTool("unzip", {"-q", "-^", target, "-d", out.path()}).exitStatus, 0);
    expectSame(out.pathOf("X"));
}

TEST_F(ReadBack, BsdtarBringsNamesOfAnyBytesBack)
{
    tree.makeFile("X/" + kNotText, 5);
    tree.makeFolder("X/" + kLineBreak);
    tree.makeFile("X/" + kLineBreak + "/" + kUmlauts, 7);
    archive();
    EXPECT_EQ(runTool("bsdtar", {"-xpf", target, "-C", out.path()}).exitStatus, 0);
    expectSame(out.pathOf("X"));
}

TEST_F(ReadBack, SetUserBitsAreKept)
{
    tree.setMode("X/nothing", 06755);
    archive();
    EXPECT_THAT(linesOfArchive(target), Contains(HasSubstr("X/nothing mode=6755 ")));
}

TEST_F(ReadBack, ALinkToAFolderIsNotFollowed)
{
    archive();
    EXPECT_THAT(linesOfArchive(target), Contains("link X/up -> .."));
    EXPECT_THAT(linesOfArchive(target), testing::Not(Contains(HasSubstr("X/up/"))));
}

/// The same with extended attributes, where the file system keeps them.
class ReadBackAttributes : public ReadBack {
protected:
    void SetUp() override
    {
        if (!setAttribute(tree.pathOf("X/nothing"), "user.comment", "a comment")) {
            GTEST_SKIP() << "no extended attributes on " << tree.path();
        }
    }
};

TEST_F(ReadBackAttributes, OfFilesAndFoldersAreKept)
{
    setAttribute(tree.pathOf("X"), "user.top", "of the top");
    setAttribute(tree.pathOf("X/sub"), "user.folder", std::string_view("\0\1\xFF", 3));
    setAttribute(tree.pathOf("X/nothing"), "user.empty", "");
    setAttribute(tree.pathOf("X/nothing"), "user.large", std::string(2000, 'v'));
    archive();
    EXPECT_EQ(linesOfArchive(target), linesOfTree(source));
    EXPECT_THAT(linesOfArchive(target), Contains("attribute X/sub folder=\\x00\\x01\\xff"));
}

TEST_F(ReadBackAttributes, LieApartFromTheItems)
{
    archive();
    EXPECT_THAT(
        runTool("unzip", {"-Z1", target}).standardOutput, HasSubstr("\n__MACOSX/X/._nothing\n"));
}

TEST_F(ReadBackAttributes, OfASingleFileAreKept)
{
    EXPECT_EQ(makeArchive(tree.pathOf("X/nothing"), target).exitStatus, 0);
    EXPECT_THAT(
        linesOfArchive(target),
        ElementsAre("attribute nothing comment=a comment", StartsWith("file nothing mode=755 ")));
}

TEST_F(ReadBackAttributes, FinderInfoAndResourceForkHaveTheirPlaces)
{
    const std::string finderInfo = "0123456789abcdef0123456789ABCDEF";
    setAttribute(tree.pathOf("X/nothing"), "user.com.apple.FinderInfo", finderInfo);
    setAttribute(tree.pathOf("X/nothing"), "user.com.apple.ResourceFork", "the fork");
    archive();
    EXPECT_EQ(linesOfArchive(target), linesOfTree(source));
    const std::string companion
        = runTool("unzip", {"-p", target, "__MACOSX/X/._nothing"}).standardOutput;
    EXPECT_EQ(companion.substr(50, 32), finderInfo);
    EXPECT_THAT(companion, EndsWith("a commentthe fork"));
}

TEST_F(ReadBackAttributes, NamesOfAnyBytesKeepTheirs)
{
    tree.makeFile("X/" + kNotText);
    setAttribute(tree.pathOf("X/" + kNotText), "user.a", "b");
    archive();
    EXPECT_EQ(linesOfArchive(target), linesOfTree(source));
}

} // namespace
} // namespace tessera::test
