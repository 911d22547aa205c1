// SPDX-License-Identifier: MIT
#include "ScannerFixture.h"
#include "support/CommaLocale.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;

class ScannerTest : public test::ScannerFixture { };

TEST_F(ScannerTest, BuildsAFolderForEveryDirectoryAndADocumentForTheRest)
{
    TopFolder& root = scanToEnd("docs/ ( a:700 .b:300 empty/ ( ) ) c:50");
    EXPECT_EQ(root.totalAllocation(), 1050U);
    EXPECT_EQ(test::at(root, "docs").type(), NodeType::Folder);
    EXPECT_EQ(test::at(root, "docs").totalAllocation(), 1000U);
    EXPECT_EQ(test::at(root, "docs/a").type(), NodeType::Document);
    EXPECT_TRUE(test::at(root, "docs/.b").hidden());
    EXPECT_TRUE(test::at(root, "docs/empty").isFolder());
}

TEST_F(ScannerTest, TheRootTakesThePathAsOriginAndItsLastComponentAsName)
{
    TopFolder& root = scanToEnd("a:1", "/srv/some data");
    EXPECT_EQ(root.origin(), "/srv/some data");
    EXPECT_EQ(root.fragment(), "some data");
}

TEST_F(ScannerTest, TheRootKnowsWhenItsScanBegan)
{
    const FileTime before = timeBeforeChanges();
    const TopFolder& root = scanToEnd("a:1");
    EXPECT_FALSE(root.scanBegan() < before);
    EXPECT_FALSE(timeBeforeChanges() < root.scanBegan());
}

TEST_F(ScannerTest, TheRootKnowsWhereTheLinksOfItsPathLed)
{
    Scanner& scanner = scannerOf("a:1");
    files->setPathWithoutLinks("/srv/link", "/disk/data");
    scanner.scan(Url("/srv/link", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->origin(), "/srv/link");
    EXPECT_EQ(delegate.tree->realOrigin(), "/disk/data");
    EXPECT_EQ(files->enumeratedPaths(), (std::vector<std::string>{"/srv/link", "/srv/link"}));
    EXPECT_THAT(files->linksToStarts(), Each(LinksToStart::Follow));
}

TEST_F(ScannerTest, APathWithoutLinksIsTheOnlyWayToTheDirectory)
{
    Scanner& scanner = scannerOf("a:1");
    scanner.setPathWithoutLinks("/disk/data/docs");
    scanner.scan(Url("/srv/link/docs", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->origin(), "/srv/link/docs");
    EXPECT_EQ(
        files->enumeratedPaths(), (std::vector<std::string>{"/disk/data/docs", "/disk/data/docs"}));
    EXPECT_THAT(files->linksToStarts(), Each(LinksToStart::Refuse));
}

TEST_F(ScannerTest, SortsEveryFolderTheRootIncluded)
{
    TopFolder& root = scanToEnd("small:1 f/ ( tiny:2 big:9 ) large:500");
    EXPECT_EQ(root.children()[0]->name(), "large");
    EXPECT_EQ(static_cast<Folder&>(test::at(root, "f")).children()[0]->name(), "big");
    EXPECT_NE(root.children()[0]->hue(), 0);
}

TEST_F(ScannerTest, AnEmptyDirectoryYieldsARootWithoutChildren)
{
    TopFolder& root = scanToEnd("");
    EXPECT_TRUE(root.children().empty());
    EXPECT_EQ(root.totalAllocation(), 0U);
}

TEST_F(ScannerTest, AnUnreadableFolderBecomesAnEmptyOne)
{
    Scanner& scanner = scannerOf("secret/ ( a:700 ) c:50");
    files->makeUnreadable("secret");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->totalAllocation(), 50U);
    EXPECT_TRUE(static_cast<Folder&>(test::at(*delegate.tree, "secret")).children().empty());
}

TEST_F(ScannerTest, AnUnreadableFolderIsToldWithItsPathAndTheReason)
{
    Scanner& scanner = scannerOf("open/ ( a:1 ) f/ ( secret/ ( a:700 ) ) last/ ( )");
    files->makeUnreadable("f/secret");
    files->makeUnreadable("last");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    const std::error_code denied(EACCES, std::system_category());
    EXPECT_THAT(
        delegate.tree->findings().unreadable(),
        ElementsAre(
            UnreadableFolder{"/data/f/secret", denied}, UnreadableFolder{"/data/last", denied}));
    EXPECT_EQ(
        delegate.tree->findings().unreadable().at(0).node, &test::at(*delegate.tree, "f/secret"));
}

TEST_F(ScannerTest, TheRootMayBeUnreadable)
{
    Scanner& scanner = scannerOf("a:1");
    files->makeUnreadable("");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    ASSERT_EQ(delegate.tree->findings().unreadable().size(), 1U);
    EXPECT_EQ(delegate.tree->findings().unreadable().at(0).path, "/data");
    EXPECT_EQ(delegate.tree->findings().unreadable().at(0).node, delegate.tree.get());
}

TEST_F(ScannerTest, EachFolderKnowsItsOwnBlocks)
{
    Scanner& scanner = scannerOf("docs/ ( a:700 empty/ ( ) ) c:50 last/ ( )");
    files->setOwnAllocation("", 4096);
    files->setOwnAllocation("docs", 8192);
    files->setOwnAllocation("docs/empty", 512);
    files->setOwnAllocation("last", 1024);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    TopFolder& root = *delegate.tree;
    EXPECT_EQ(root.ownAllocation(), 4096U);
    EXPECT_EQ(static_cast<Folder&>(test::at(root, "docs")).ownAllocation(), 8192U);
    EXPECT_EQ(static_cast<Folder&>(test::at(root, "docs/empty")).ownAllocation(), 512U);
    EXPECT_EQ(static_cast<Folder&>(test::at(root, "last")).ownAllocation(), 1024U);
    EXPECT_EQ(root.totalAllocation(), 750U) << "what is in them is all that a total has";
}

TEST_F(ScannerTest, LogsTheEndWithItsFigures)
{
    testing::internal::CaptureStderr();
    scanToEnd("a:350 f/ ( b:50 )");
    workers->waitForNone();
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "Scan Complete: /data {time: 0.0000, objects: 3, allocation size: 400}\n");
}

TEST_F(ScannerTest, LogsTheTimeWithAPointInEveryLocale)
{
    const test::CommaLocale locale;
    if (!locale.isThere()) {
        GTEST_SKIP() << "there is no locale with a decimal comma";
    }
    testing::internal::CaptureStderr();
    Scanner& scanner = scannerOf("a:350");
    beforeEachItem([this] { now = 100.02; });
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    workers->waitForNone();
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "Scan Complete: /data {time: 0.0200, objects: 1, allocation size: 350}\n");
}

TEST_F(ScannerTest, SizesThatNoDiskHasDoNotWrapRound)
{
    // Three times 2^63 bytes and three more would be 2^63 + 3 again.
    TopFolder& root
        = scanToEnd("f/ ( a:9223372036854775808 b:9223372036854775808 c:9223372036854775808 ) d:3");
    EXPECT_EQ(test::at(root, "f/a").totalAllocation(), 9223372036854775807U);
    EXPECT_EQ(test::at(root, "f").totalAllocation(), 9223372036854775807U);
    EXPECT_EQ(root.totalAllocation(), 9223372036854775807U);
    EXPECT_EQ(root.children()[0]->name(), "f");
}

TEST_F(ScannerTest, AFileOfSeveralNamesCountsOnce)
{
    testing::internal::CaptureStderr();
    TopFolder& root = scanToEnd("a/ ( x:500#3/2 ) b/ ( y:500#3/2 ) c:1");
    workers->waitForNone();
    EXPECT_EQ(root.totalAllocation(), 501U);
    EXPECT_EQ(test::at(root, "b/y").totalAllocation(), 0U);
    EXPECT_NE(
        testing::internal::GetCapturedStderr().find("allocation size: 501}"), std::string::npos);
}

TEST_F(ScannerTest, AChainOfAThousandFoldersIsBuilt)
{
    std::string items = "x:7 ";
    for (int i = 0; i < 1000; ++i) {
        items.insert(0, "f/ ( ");
        items += ") ";
    }
    EXPECT_EQ(scanToEnd(items).totalAllocation(), 7U);
}

} // namespace
} // namespace tessera
