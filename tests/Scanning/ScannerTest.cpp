// SPDX-License-Identifier: MIT
#include "Scanning/Scanner.h"

#include "Model/TimeMachine.h"
#include "Model/Volume.h"
#include "Scanning/ScannerDelegate.h"
#include "support/CommaLocale.h"
#include "support/FakeDirectoryEnumerator.h"
#include "support/FakeFileSystem.h"
#include "support/FakeMainThread.h"
#include "support/makeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <cmath>
#include <functional>
#include <future>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

struct Update {
    std::string path;
    double percent = 0;
    std::uint64_t objects = 0;
    std::uint64_t bytes = 0;
};

class RecordingDelegate final : public ScannerDelegate {
public:
    void scanUpdated(Scanner& scanner) override
    {
        calls.emplace_back("updated");
        updates.push_back(
            {scanner.currentURL().path(),
             scanner.percentComplete(),
             scanner.objectsRead(),
             scanner.allocationRead()});
    }

    void scanEnded(Scanner& scanner) override
    {
        calls.emplace_back("ended");
        endedOn = std::this_thread::get_id();
        tree = scanner.takeTopFolder();
    }

    void scanCancelled(Scanner& /*scanner*/) override { calls.emplace_back("cancelled"); }

    void scanFailed(Scanner& /*scanner*/, const std::error_code& why) override
    {
        calls.emplace_back("failed");
        problem = why;
    }

    bool hasEnded() const { return !calls.empty() && calls.back() == "ended"; }

    std::vector<std::string> calls;
    std::vector<Update> updates;
    std::thread::id endedOn;
    std::unique_ptr<TopFolder> tree;
    std::error_code problem;
};

/// A scanner in a system of fakes. The clock stands still unless a test turns it.
class ScannerTest : public testing::Test {
protected:
    ~ScannerTest() override
    {
        m_scanner.reset();
        workers->waitForNone();
    }

    Scanner& scannerOf(std::string_view items)
    {
        files = std::make_unique<test::FakeFileManager>(items);
        m_scanner = Scanner::create(
            {*files,
             resourceValues,
             fileSystem,
             mainThread,
             [this] {
                 if (onClock) {
                     onClock();
                 }
                 return now.load();
             },
             home,
             workers});
        m_scanner->setDelegate(&delegate);
        return *m_scanner;
    }

    TopFolder& scanToEnd(std::string_view items, std::string_view path = "/data")
    {
        scannerOf(items).scan(Url(path, true));
        mainThread.runUntil([this] { return delegate.hasEnded(); });
        return *delegate.tree;
    }

    /// Lets `seconds` pass before every item of the walk, not of the count made in advance.
    void passBeforeEachItem(double seconds)
    {
        beforeEachItem([this, seconds] { now = now.load() + seconds; });
    }

    /// The same, with every report delivered before the next item comes. Needs a turning loop.
    void passAndDeliverBeforeEachItem(double seconds)
    {
        beforeEachItem([this, seconds] {
            mainThread.performAndWait([] {});
            now = now.load() + seconds;
        });
    }

    void beforeEachItem(const std::function<void()>& action)
    {
        files->onItem([this, action](const std::string& /*path*/) {
            if (files->enumeratedPaths().size() == enumerationsBeforeWalk + 1) {
                action();
            }
        });
    }

    void drop() { m_scanner.reset(); }

    /// Delivers all that is on its way.
    void drain()
    {
        bool drained = false;
        mainThread.perform([&] { drained = true; });
        mainThread.runUntil([&] { return drained; });
    }

    /// Until no worker is left.
    void runUntilIdle()
    {
        bool isIdle = false;
        std::thread waiter([&] {
            workers->waitForNone();
            mainThread.perform([&isIdle] { isIdle = true; });
        });
        mainThread.runUntil([&isIdle] { return isIdle; });
        waiter.join();
    }

    /// Has the first scan stop where its first report is due, until the gate opens. The future says
    /// when it is there.
    std::future<void> stopAtFirstReport(std::shared_future<void> gate)
    {
        auto reached = std::make_shared<std::promise<void>>();
        std::future<void> stopped = reached->get_future();
        auto asked = std::make_shared<std::atomic<int>>(0);
        onClock = [this, reached, asked, gate = std::move(gate)] {
            if (asked->fetch_add(1) == 1) { // the first time is the start's
                now = now.load() + 1.0;
                reached->set_value();
                gate.wait();
            }
        };
        return stopped;
    }

    std::unique_ptr<test::FakeFileManager> files;
    test::FakeResourceValues resourceValues;
    test::FixedFileSystem fileSystem{FileSystemSizes{1000, 300}};
    test::FakeMainThread mainThread;
    std::shared_ptr<ScanWorkers> workers = std::make_shared<ScanWorkers>();
    RecordingDelegate delegate;
    std::atomic<double> now = 100.0;
    std::function<void()> onClock; ///< on the worker's thread
    std::string home = "/home/me";
    std::size_t enumerationsBeforeWalk = 1;

private:
    std::shared_ptr<Scanner> m_scanner;
};

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

TEST_F(ScannerTest, AFolderGivesATopFolder)
{
    EXPECT_EQ(scanToEnd("a:1").type(), NodeType::TopFolder);
}

TEST_F(ScannerTest, AMountedVolumeGivesAVolumeWithItsPseudoNodes)
{
    resourceValues.volumes = {"/data"};
    TopFolder& volume = scanToEnd("a:600");
    ASSERT_EQ(volume.type(), NodeType::Volume);
    EXPECT_EQ(volume.totalAllocation(), 700U);
    EXPECT_EQ(test::at(volume, "Free Space").totalAllocation(), 300U);
    EXPECT_EQ(test::at(volume, "Restricted Files").totalAllocation(), 100U);
}

TEST_F(ScannerTest, TheHomeFolderGivesATopFolderEvenWhenItIsAVolume)
{
    resourceValues.volumes = {"/home/me"};
    EXPECT_EQ(scanToEnd("a:600", "/home/me").type(), NodeType::TopFolder);
}

TEST_F(ScannerTest, APartOfATreeIsAFolderWhateverIsMountedInThere)
{
    resourceValues.mountPoints = {"/data/disk"};
    Scanner& scanner = scannerOf("disk/ ( a:600 ) b:50");
    scanner.scan(Url("/data", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->type(), NodeType::TopFolder);
    EXPECT_EQ(delegate.tree->totalAllocation(), 650U);
}

TEST_F(ScannerTest, AVolumeStaysEmptyAsPartOfATree)
{
    resourceValues.volumes = {"/data"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->type(), NodeType::TopFolder);
    EXPECT_THAT(delegate.tree->children().span(), IsEmpty());
    EXPECT_THAT(files->enumeratedPaths(), IsEmpty()) << "nor is it looked into";
}

TEST_F(ScannerTest, AMountedPartOfADiskStaysEmptyAsPartOfATree)
{
    resourceValues.mountPoints = {"/data"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->totalAllocation(), 0U);
}

TEST_F(ScannerTest, AnEncryptedHomeIsWalkedAsPartOfATreeToo)
{
    resourceValues.volumes = {"/data/home/me"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data/home/me", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->type(), NodeType::TopFolder);
    EXPECT_EQ(delegate.tree->totalAllocation(), 600U);
}

TEST_F(ScannerTest, TheHomeIsOneByAnyPathThatLeadsThere)
{
    resourceValues.volumes = {"/home/link"};
    resourceValues.links["/home/link"] = "/home/me";
    EXPECT_EQ(scanToEnd("a:600", "/home/link").type(), NodeType::TopFolder);
}

TEST_F(ScannerTest, ABackupStoreAtTheTopOfAVolumeIsNotWalked)
{
    resourceValues.volumes = {"/data"};
    TopFolder& root = scanToEnd("Backups.backupdb/ ( old/ ( a:50 ) ) b:200");
    EXPECT_TRUE(static_cast<Folder&>(test::at(root, "Backups.backupdb")).children().empty());
    EXPECT_EQ(test::at(root, "Time Machine").totalAllocation(), 500U);
    EXPECT_EQ(test::at(root, "Time Machine").type(), NodeType::TimeMachine);
}

TEST_F(ScannerTest, OfAVolumeWhoseLinksAddUpToMoreThanIsInUseTheBackupsAreEmpty)
{
    resourceValues.volumes = {"/data"};
    TopFolder& root = scanToEnd("Backups.backupdb/ ( ) b:400 link:400");
    EXPECT_EQ(test::at(root, "Time Machine").totalAllocation(), 0U);
    EXPECT_EQ(root.totalAllocation(), 700U);
}

TEST_F(ScannerTest, OfAVolumeWithMoreFreeThanItHasTheBackupsAreEmpty)
{
    resourceValues.volumes = {"/data"};
    fileSystem.setSizes(FileSystemSizes{300, 1000});
    TopFolder& root = scanToEnd("Backups.backupdb/ ( ) b:200");
    EXPECT_EQ(test::at(root, "Time Machine").totalAllocation(), 0U);
}

TEST_F(ScannerTest, ABackupStoreInAFolderIsWalkedLikeAnyFolder)
{
    TopFolder& root = scanToEnd("Backups.backupdb/ ( old/ ( a:50 ) ) b:200");
    EXPECT_EQ(test::at(root, "Backups.backupdb").totalAllocation(), 50U);
    EXPECT_EQ(root.children().size(), 2U);
    EXPECT_EQ(root.totalAllocation(), 250U);
}

TEST_F(ScannerTest, AFileWithTheNameOfABackupStoreIsNone)
{
    resourceValues.volumes = {"/data"};
    TopFolder& root = scanToEnd("Backups.backupdb:50 b:200");
    EXPECT_EQ(root.children().size(), 4U) << "two files, free space, restricted files";
    EXPECT_EQ(test::at(root, "Restricted Files").totalAllocation(), 450U);
}

TEST_F(ScannerTest, ABackupStoreDeeperDownIsWalkedLikeAnyFolder)
{
    TopFolder& root = scanToEnd("f/ ( Backups.backupdb/ ( a:50 ) )");
    EXPECT_EQ(test::at(root, "f/Backups.backupdb/a").totalAllocation(), 50U);
    EXPECT_EQ(root.children().size(), 1U);
}

TEST_F(ScannerTest, AHiddenFolderNamedAfterTheUserIsNotWalkedInTheUpperTwoLevels)
{
    TopFolder& root = scanToEnd(".me/ ( a:1 ) f/ ( .me/ ( b:2 ) g/ ( .me/ ( c:4 ) ) )");
    EXPECT_TRUE(static_cast<Folder&>(test::at(root, ".me")).children().empty());
    EXPECT_TRUE(static_cast<Folder&>(test::at(root, "f/.me")).children().empty());
    EXPECT_EQ(test::at(root, "f/g/.me/c").totalAllocation(), 4U);
}

TEST_F(ScannerTest, FileVaultsHoldsOnlyVolumesNamedAfterTheUserInTheUpperTwoLevels)
{
    resourceValues.volumes = {"/data/home/me", "/data/home/you", "/data/a/b/me"};
    Scanner& scanner = scannerOf("home/ ( me/ ( ) you/ ( ) ) a/ ( me/ ( ) b/ ( me/ ( ) ) )");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(scanner.fileVaults(), ElementsAre(Url("/data/home/me", true)));
}

TEST_F(ScannerTest, AHomeIsInFileVaultsToWhereOnlyAPartOfADiskIsMountedThere)
{
    resourceValues.mountPoints = {"/data/me"};
    Scanner& scanner = scannerOf("me/ ( )");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(scanner.fileVaults(), ElementsAre(Url("/data/me", true)));
}

TEST_F(ScannerTest, StartingSetsTheProgressToItsStart)
{
    Scanner& scanner = scannerOf("a:1");
    scanner.scan(Url("/data", true));
    EXPECT_EQ(scanner.currentURL(), Url("/data", true));
    EXPECT_EQ(scanner.percentComplete(), 0.0);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
}

TEST_F(ScannerTest, ReportsOnlyWhenMoreThanATenthOfASecondHasPassed)
{
    Scanner& scanner = scannerOf("a:1 b:1 c:1 d:1");
    passAndDeliverBeforeEachItem(0.0625);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(delegate.calls, ElementsAre("updated", "updated", "ended"));
    EXPECT_EQ(delegate.updates[0].path, "/data/b");
    EXPECT_EQ(delegate.updates[1].path, "/data/d");
}

TEST_F(ScannerTest, ATenthOfASecondExactlyIsTooEarlyForAReport)
{
    now = 0;
    Scanner& scanner = scannerOf("a:1 b:1 c:1");
    std::vector<double> times{0.1, std::nextafter(0.1, 1.0), 0.2};
    std::size_t item = 0;
    beforeEachItem([&] { now = times.at(item++); });
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(delegate.calls, ElementsAre("updated", "ended"));
    EXPECT_EQ(scanner.currentURL().path(), "/data/b");
}

TEST_F(ScannerTest, AFoldersProgressIsTheShareOfItsUpperTwoLevels)
{
    Scanner& scanner = scannerOf("f/ ( g/ ( deep:8 ) ) c:2");
    passAndDeliverBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    std::vector<double> percents;
    for (const Update& update : delegate.updates) {
        percents.push_back(update.percent);
    }
    EXPECT_THAT(percents, ElementsAre(1.0 / 3.0, 2.0 / 3.0, 2.0 / 3.0, 1.0));
    EXPECT_EQ(delegate.updates[2].path, "/data/f/g/deep");
    EXPECT_EQ(delegate.updates[2].objects, 3U);
    EXPECT_EQ(delegate.updates[2].bytes, 8U);
}

TEST_F(ScannerTest, AFoldersProgressPassesOneWhenItemsAppearAfterTheCount)
{
    Scanner& scanner = scannerOf("a:1 b:1 late:1");
    files->makeAppearLate("late");
    passAndDeliverBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    ASSERT_EQ(delegate.updates.size(), 3U);
    EXPECT_DOUBLE_EQ(delegate.updates[1].percent, 1.0);
    EXPECT_DOUBLE_EQ(delegate.updates[2].percent, 1.5);
}

TEST_F(ScannerTest, AVolumesProgressIsTheShareOfItsUsedBytesAndNotClamped)
{
    resourceValues.volumes = {"/data"};
    enumerationsBeforeWalk = 0;
    Scanner& scanner = scannerOf("a:350 b:700");
    passAndDeliverBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_DOUBLE_EQ(delegate.updates[0].percent, 0.5);
    EXPECT_DOUBLE_EQ(delegate.updates[1].percent, 1.5);
}

TEST_F(ScannerTest, TheProgressOfAHomeThatIsAVolumeIsNotGuarded)
{
    resourceValues.volumes = {"/home/me"};
    Scanner& scanner = scannerOf("none:0 a:350");
    passAndDeliverBeforeEachItem(1.0);
    scanner.scan(Url("/home/me", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_TRUE(std::isnan(delegate.updates[0].percent));
    EXPECT_TRUE(std::isinf(delegate.updates[1].percent));
}

TEST_F(ScannerTest, AScanShorterThanTheReportIntervalLeavesTheProgressAtItsStart)
{
    Scanner& scanner = scannerOf("a:350");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(scanner.objectsRead(), 0U);
    EXPECT_EQ(scanner.allocationRead(), 0U);
    EXPECT_EQ(scanner.percentComplete(), 0.0);
    EXPECT_EQ(scanner.currentURL().path(), "/data");
}

TEST_F(ScannerTest, TheLastReportStaysAfterTheEnd)
{
    Scanner& scanner = scannerOf("a:350 b:50 c:1");
    passBeforeEachItem(0.0625);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(scanner.objectsRead(), 2U);
    EXPECT_EQ(scanner.allocationRead(), 400U);
    EXPECT_EQ(scanner.currentURL().path(), "/data/b");
}

TEST_F(ScannerTest, WithoutADelegateNothingIsReported)
{
    Scanner& scanner = scannerOf("a:350 b:50");
    passBeforeEachItem(1.0);
    scanner.setDelegate(nullptr);
    scanner.scan(Url("/data", true));
    workers->waitForNone();
    EXPECT_EQ(scanner.objectsRead(), 0U);
    EXPECT_EQ(scanner.topFolder()->totalAllocation(), 400U);
}

TEST_F(ScannerTest, TheEndCallComesOnTheMainThread)
{
    scanToEnd("a:1");
    EXPECT_EQ(delegate.endedOn, std::this_thread::get_id());
}

TEST_F(ScannerTest, TheWorkerWaitsForTheEndCallAloneNotForReports)
{
    Scanner& scanner = scannerOf("a:1 b:1");
    passBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(delegate.calls, ElementsAre("updated", "updated", "ended"));
    EXPECT_THAT(mainThread.waits(), ElementsAre(false, false, true));
}

TEST_F(ScannerTest, ACancelledScanIsToldOnceAndDoesNotEnd)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    files->onItem([&](const std::string& path) {
        if (files->enumeratedPaths().size() == 2 && path == "b") {
            now = now.load() + 1.0;
            mainThread.performAndWait([&] { scanner.cancel(); });
        }
    });
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return !delegate.calls.empty(); });
    workers->waitForNone();
    EXPECT_THAT(delegate.calls, ElementsAre("cancelled"));
    EXPECT_EQ(scanner.topFolder()->totalAllocation(), 1U);
}

TEST_F(ScannerTest, AScanCancelledDuringTheCountReadsNothingMore)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    std::vector<std::string> counted;
    files->onItem([&](const std::string& path) {
        counted.push_back(path);
        if (counted.size() == 1) {
            mainThread.performAndWait([&] { scanner.cancel(); });
        }
    });
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return !delegate.calls.empty(); });
    workers->waitForNone();
    EXPECT_THAT(counted, ElementsAre("a"));
    EXPECT_EQ(files->enumeratedPaths().size(), 1U) << "the walk opens the folder no more";
    EXPECT_NE(scanner.topFolder(), nullptr);
}

TEST_F(ScannerTest, AnEndOnItsWayWhileTheScanIsCancelledIsDropped)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    scanner.scan(Url("/data", true));
    mainThread.awaitWork();
    scanner.cancel();
    drain();
    EXPECT_THAT(delegate.calls, ElementsAre("cancelled"));
}

TEST_F(ScannerTest, ADelegateTakenAwayHearsNothingOfAnEndOnItsWay)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    scanner.scan(Url("/data", true));
    mainThread.awaitWork();
    scanner.setDelegate(nullptr);
    drain();
    EXPECT_THAT(delegate.calls, IsEmpty());
}

TEST_F(ScannerTest, AReportOnItsWayWhileTheScanIsCancelledIsDropped)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    passBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return !delegate.updates.empty(); });
    scanner.cancel();
    bool drained = false;
    mainThread.perform([&] { drained = true; });
    mainThread.runUntil([&] { return drained; });
    EXPECT_THAT(delegate.calls, ElementsAre("updated", "cancelled"));
}

TEST_F(ScannerTest, TheScannerMayBeDroppedRightAfterItWasCancelled)
{
    Scanner& scanner = scannerOf("a:1 b/ ( c:3 )");
    std::promise<void> dropped;
    beforeEachItem([done = dropped.get_future().share()] { done.wait(); });
    scanner.scan(Url("/data", true));
    scanner.cancel();
    drop();
    dropped.set_value();
    workers->waitForNone();
    EXPECT_THAT(delegate.calls, ElementsAre("cancelled"));
}

TEST_F(ScannerTest, AScannerCanBeStartedAgain)
{
    Scanner& scanner = scannerOf("a:5");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    delegate.calls.clear();
    scanner.scan(Url("/other", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->origin(), "/other");
}

TEST_F(ScannerTest, StartingAgainResetsTheProgressButNotTheFigures)
{
    Scanner& scanner = scannerOf("a:350 b:50");
    passBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    workers->waitForNone();
    ASSERT_EQ(scanner.percentComplete(), 1.0);

    std::promise<void> gate;
    files->onItem([open = gate.get_future().share()](const std::string&) { open.wait(); });
    delegate.calls.clear();
    scanner.scan(Url("/other", true));
    EXPECT_EQ(scanner.percentComplete(), 0.0);
    EXPECT_EQ(scanner.currentURL().path(), "/other");
    EXPECT_EQ(scanner.objectsRead(), 2U);
    EXPECT_EQ(scanner.allocationRead(), 400U);
    gate.set_value();
    mainThread.runUntil([this] { return delegate.hasEnded(); });
}

TEST_F(ScannerTest, StartingAgainForgetsTheTreeAndTheHomes)
{
    resourceValues.volumes = {"/data/me"};
    Scanner& scanner = scannerOf("me/ ( )");
    scanner.setDelegate(nullptr);
    scanner.scan(Url("/data", true));
    workers->waitForNone();
    ASSERT_NE(scanner.topFolder(), nullptr);
    ASSERT_EQ(scanner.fileVaults().size(), 1U);

    std::promise<void> gate;
    files->onItem([open = gate.get_future().share()](const std::string&) { open.wait(); });
    scanner.scan(Url("/other", true));
    EXPECT_EQ(scanner.topFolder(), nullptr);
    EXPECT_THAT(scanner.fileVaults(), IsEmpty());
    gate.set_value();
}

TEST_F(ScannerTest, ARunThatIsReplacedDeliversNothing)
{
    Scanner& scanner = scannerOf("a:5 b:6 c:7");
    std::promise<void> gate;
    const std::future<void> stopped = stopAtFirstReport(gate.get_future().share());
    scanner.scan(Url("/data", true));
    stopped.wait();
    scanner.scan(Url("/other", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->origin(), "/other");

    gate.set_value();
    runUntilIdle();
    EXPECT_THAT(delegate.calls, ElementsAre("ended"));
    EXPECT_EQ(scanner.topFolder(), nullptr) << "the new run's was taken";
    EXPECT_EQ(scanner.currentURL().path(), "/other");
    EXPECT_EQ(scanner.objectsRead(), 0U);
}

TEST_F(ScannerTest, AfterACancelledRunANewOneEndsAloneWithItsOwnTree)
{
    Scanner& scanner = scannerOf("a:5 b:6");
    files->onItem([&](const std::string& /*path*/) {
        if (files->enumeratedPaths().size() == 2) {
            mainThread.performAndWait([&] { scanner.cancel(); });
        }
    });
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return !delegate.calls.empty(); });
    workers->waitForNone();
    files->onItem({});
    scanner.scan(Url("/other", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(delegate.calls, ElementsAre("cancelled", "ended"));
    EXPECT_EQ(delegate.tree->origin(), "/other");
}

TEST_F(ScannerTest, WhereThereIsNoThreadForItTheScanFailsWithTheReason)
{
    workers = std::make_shared<ScanWorkers>([](const ScanWorkers::Work& /*work*/) {
        throw std::system_error(EAGAIN, std::generic_category());
    });
    Scanner& scanner = scannerOf("a:5");
    scanner.scan(Url("/data", true));
    EXPECT_THAT(delegate.calls, IsEmpty()) << "not before scan() has returned";
    mainThread.runUntil([this] { return !delegate.calls.empty(); });
    EXPECT_THAT(delegate.calls, ElementsAre("failed"));
    EXPECT_EQ(delegate.problem, std::errc::resource_unavailable_try_again);
    workers->waitForNone();
}

TEST_F(ScannerTest, AFailureOnItsWayWhileTheScanIsCancelledIsDropped)
{
    workers = std::make_shared<ScanWorkers>([](const ScanWorkers::Work& /*work*/) {
        throw std::system_error(EAGAIN, std::generic_category());
    });
    Scanner& scanner = scannerOf("a:5");
    scanner.scan(Url("/data", true));
    scanner.cancel();
    bool drained = false;
    mainThread.perform([&] { drained = true; });
    mainThread.runUntil([&] { return drained; });
    EXPECT_THAT(delegate.calls, ElementsAre("cancelled"));
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
