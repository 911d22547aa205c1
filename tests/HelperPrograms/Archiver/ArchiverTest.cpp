// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/Archiver.h"

#include "HelperPrograms/Archiver/Archives.h"
#include "HelperPrograms/Archiver/FakeArchiveOutput.h"
#include "HelperPrograms/Archiver/FakeSourceWalk.h"
#include "support/Machine/TempTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <utility>

namespace tessera::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using Step = SourceWalk::Step;

/// A path of that length, of short names.
std::string pathOfLength(std::size_t length)
{
    std::string path(length, 'p');
    for (std::size_t i = 100; i + 1 < length; i += 100) {
        path[i] = '/';
    }
    return path;
}

class ArchiverOfPreparedItems : public testing::Test {
protected:
    ArchiveReport run() { return Archiver(source, output).run(); }

    std::vector<std::string> lines() const
    {
        const TempTree out;
        out.writeFile("x.zip", output.bytes);
        return linesOfArchive(out.pathOf("x.zip"));
    }

    /// Archives that item alone and returns the line for it.
    std::string lineFor(FakeSourceWalk::Prepared prepared)
    {
        prepared.item.path = "file";
        source.add(std::move(prepared));
        report = run();
        EXPECT_EQ(report.outputError, 0);
        EXPECT_EQ(report.failureCount, 0U);
        return lines().at(0);
    }

    std::string lineForTime(std::int64_t modified)
    {
        FakeSourceWalk::Prepared prepared;
        prepared.item.modified = modified;
        return lineFor(std::move(prepared));
    }

    std::string lineForContent(const std::string& content, std::uint64_t announcedLength)
    {
        FakeSourceWalk::Prepared prepared;
        prepared.item.length = announcedLength;
        prepared.content = content;
        return lineFor(std::move(prepared));
    }

    FakeSourceWalk source;
    FakeArchiveOutput output;
    ArchiveReport report; ///< of lineFor()
};

TEST_F(ArchiverOfPreparedItems, HoldsThemInTheirOrder)
{
    source.addFolder("X");
    source.addFile("X/a", "content");
    report = run();
    EXPECT_EQ(report.outputError, 0);
    EXPECT_THAT(
        lines(),
        ElementsAre(
            "folder X mode=755 modified=0", "file X/a mode=644 modified=0 size=7 crc=fec530a9"));
    EXPECT_TRUE(output.isClosed);
}

TEST_F(ArchiverOfPreparedItems, OfNoneIsAValidArchive)
{
    EXPECT_EQ(run().outputError, 0);
    EXPECT_EQ(output.bytes.size(), 22U);
}

TEST_F(ArchiverOfPreparedItems, OneThatCannotBeReadKeepsNoOtherOut)
{
    source.addStep(Step::Failed, "X/secret", EACCES);
    source.addFile("X/z", "z");
    report = run();
    EXPECT_EQ(report.failureCount, 1U);
    EXPECT_EQ(report.firstFailure.text(), "cannot archive 'X/secret': Permission denied");
    EXPECT_THAT(lines(), ElementsAre(HasSubstr("file X/z ")));
}

TEST_F(ArchiverOfPreparedItems, TheFirstFailureStandsForAll)
{
    source.addStep(Step::Failed, "first", EIO);
    source.addStep(Step::Failed, "second", EACCES);
    report = run();
    EXPECT_EQ(report.failureCount, 2U);
    EXPECT_EQ(report.firstFailure.path, "first");
}

TEST_F(ArchiverOfPreparedItems, WhatHasNoContentIsNoFailure)
{
    source.addStep(Step::LeftOut, "X/socket");
    source.addStep(Step::LeftOut, "X/socket2");
    report = run();
    EXPECT_EQ(report.failureCount, 0U);
    EXPECT_EQ(report.leftOut.count, 2U);
    EXPECT_EQ(report.leftOut.first, "X/socket");
}

TEST_F(ArchiverOfPreparedItems, WhatVanishedIsCountedAndNoFailure)
{
    source.addStep(Step::Vanished, "X/first");
    source.addStep(Step::Vanished, "X/second");
    report = run();
    EXPECT_EQ(report.failureCount, 0U);
    EXPECT_EQ(report.vanished.count, 2U);
    EXPECT_EQ(report.vanished.first, "X/first");
}

TEST_F(ArchiverOfPreparedItems, OneThatLacksAttributesIsStoredWithItsContentAndCounted)
{
    FakeSourceWalk::Prepared prepared;
    prepared.item.path = "file";
    prepared.item.length = 7;
    prepared.item.lacksAttributes = true;
    prepared.content = "content";
    source.add(prepared);
    report = run();
    EXPECT_EQ(report.failureCount, 0U);
    EXPECT_EQ(report.lackingAttributes.first, "file");
    EXPECT_THAT(lines(), ElementsAre(HasSubstr("size=7 crc=fec530a9")));
}

TEST_F(ArchiverOfPreparedItems, AFileThatHasShrunkIsCounted)
{
    lineForContent("abc", 4);
    EXPECT_EQ(report.shrunk.count, 1U);
    EXPECT_EQ(report.shrunk.first, "file");
}

TEST_F(ArchiverOfPreparedItems, AFileThatHasGrownHasNotShrunk)
{
    lineForContent("abcdef", 6);
    EXPECT_EQ(report.shrunk.count, 0U);
}

TEST_F(ArchiverOfPreparedItems, AFileThatBreaksOffIsAFailureAndTheArchiveValid)
{
    FakeSourceWalk::Prepared broken;
    broken.item.path = "broken";
    broken.item.length = 100;
    broken.content = "abc";
    broken.error = EIO;
    source.add(broken);
    source.addFile("next", "n");
    report = run();
    EXPECT_EQ(report.firstFailure.text(), "cannot archive 'broken': Input/output error");
    EXPECT_EQ(report.shrunk.count, 0U);
    EXPECT_THAT(lines(), Contains(HasSubstr("file broken mode=0 modified=0 size=3 crc=352441c2")));
    EXPECT_THAT(lines(), Contains(HasSubstr("file next ")));
}

TEST_F(ArchiverOfPreparedItems, AFileThatHasShrunkIsStoredWithWhatItHas)
{
    EXPECT_THAT(lineForContent("abc", 100), HasSubstr("size=3 crc=352441c2"));
}

TEST_F(ArchiverOfPreparedItems, AFileThatHasGrownIsStoredWithTheLengthItHad)
{
    EXPECT_THAT(lineForContent("abcdef", 3), HasSubstr("size=3 crc=352441c2"));
}

TEST_F(ArchiverOfPreparedItems, TheLongestPathFits)
{
    source.addFolder(std::string(65534, 'p'));
    EXPECT_EQ(run().failureCount, 0U);
    EXPECT_EQ(lines().at(0), "folder " + std::string(65534, 'p') + " mode=755 modified=0");
}

TEST_F(ArchiverOfPreparedItems, ALongerPathIsAFailure)
{
    source.addFolder(std::string(65535, 'p'));
    source.addFile("next", "n");
    report = run();
    EXPECT_EQ(report.firstFailure.code, ENAMETOOLONG);
    EXPECT_THAT(lines(), ElementsAre(HasSubstr("file next ")));
}

TEST_F(ArchiverOfPreparedItems, AttributesWhoseOwnPathIsTooLongAreAFailure)
{
    FakeSourceWalk::Prepared prepared;
    for (int i = 0; i < 256; ++i) {
        prepared.item.path += std::string(254, 'p') + '/';
    }
    prepared.item.path += std::string(250, 'p');
    prepared.item.attributes = {{"name", "value"}};
    source.add(prepared);
    EXPECT_EQ(run().firstFailure.code, ENAMETOOLONG);
    EXPECT_EQ(lines().size(), 1U);
}

TEST_F(ArchiverOfPreparedItems, AttributesMayHaveTheLongestPathAndNoLongerOne)
{
    // "__MACOSX/" and "._" come to the item's own path.
    for (const auto& [length, failures] : {std::pair(65523U, 0U), std::pair(65524U, 1U)}) {
        FakeSourceWalk::Prepared prepared;
        prepared.item.path = pathOfLength(length);
        prepared.item.attributes = {{"name", "value"}};
        FakeSourceWalk walk;
        walk.add(prepared);
        FakeArchiveOutput archive;
        EXPECT_EQ(Archiver(walk, archive).run().failureCount, failures) << length;
    }
}

TEST_F(ArchiverOfPreparedItems, TimesAreSecondsSince1970)
{
    EXPECT_THAT(lineForTime(1'700'000'001), HasSubstr("modified=1700000001 "));
}

TEST_F(ArchiverOfPreparedItems, TimesBefore1970BecomeThatYear)
{
    EXPECT_THAT(lineForTime(std::numeric_limits<std::int64_t>::min()), HasSubstr("modified=0 "));
}

TEST_F(ArchiverOfPreparedItems, TimesTooLateForTheFormatBecomeTheLatest)
{
    EXPECT_THAT(
        lineForTime(std::numeric_limits<std::int64_t>::max()), HasSubstr("modified=4294967295 "));
}

TEST_F(ArchiverOfPreparedItems, AFullDiskEndsTheWork)
{
    output.room = 1'000'000;
    source.addFile("a", noise(2'000'000));
    source.addFile("b", noise(2'000'000));
    EXPECT_EQ(run().outputError, ENOSPC);
    EXPECT_EQ(source.delivered(), 1U);
    EXPECT_EQ(output.failedWrites, 1);
}

TEST_F(ArchiverOfPreparedItems, ADiskThatIsFullAtTheVeryEndIsAFailure)
{
    source.addFile("a", "content");
    output.room = 100;
    EXPECT_EQ(run().outputError, ENOSPC);
}

TEST_F(ArchiverOfPreparedItems, AFragmentIsNotCompleted)
{
    {
        ZipWriter writer(output);
        ArchiveItem item;
        item.path = "file";
        writer.begin(item);
    }
    EXPECT_EQ(output.bytes, "");
}

TEST_F(ArchiverOfPreparedItems, AnErrorThatClosingTellsIsAFailure)
{
    output.closeError = EDQUOT;
    source.addFile("a", "content");
    EXPECT_EQ(run().outputError, EDQUOT);
}

TEST_F(ArchiverOfPreparedItems, WhoeverMayNotReadTheFileMayNotReadItsAttributes)
{
    FakeSourceWalk::Prepared prepared;
    prepared.item.path = "private";
    prepared.item.permissions = 0700;
    prepared.item.attributes = {{"name", "value"}};
    source.add(prepared);
    ASSERT_EQ(run().outputError, 0);
    const TempTree out;
    out.writeFile("x.zip", output.bytes);
    EXPECT_THAT(
        runTool("bsdtar", {"-tvf", out.pathOf("x.zip")}).standardOutput,
        testing::ContainsRegex("-rw------- .* __MACOSX/\\._private"));
}

} // namespace
} // namespace tessera::test
