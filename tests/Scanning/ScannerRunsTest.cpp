// SPDX-License-Identifier: MIT
#include "ScannerFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScannerRunsTest : public test::ScannerFixture { };

TEST_F(ScannerRunsTest, TheEndCallComesOnTheMainThread)
{
    scanToEnd("a:1");
    EXPECT_EQ(delegate.endedOn, std::this_thread::get_id());
}

TEST_F(ScannerRunsTest, TheWorkerWaitsForTheEndCallAloneNotForReports)
{
    Scanner& scanner = scannerOf("a:1 b:1");
    passBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(delegate.calls, ElementsAre("updated", "updated", "ended"));
    EXPECT_THAT(mainThread.waits(), ElementsAre(false, false, true));
}

TEST_F(ScannerRunsTest, ACancelledScanIsToldOnceAndDoesNotEnd)
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

TEST_F(ScannerRunsTest, AScanCancelledDuringTheCountReadsNothingMore)
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

TEST_F(ScannerRunsTest, AnEndOnItsWayWhileTheScanIsCancelledIsDropped)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    scanner.scan(Url("/data", true));
    mainThread.awaitWork();
    scanner.cancel();
    drain();
    EXPECT_THAT(delegate.calls, ElementsAre("cancelled"));
}

TEST_F(ScannerRunsTest, ADelegateTakenAwayHearsNothingOfAnEndOnItsWay)
{
    Scanner& scanner = scannerOf("a:1 b:2 c:3");
    scanner.scan(Url("/data", true));
    mainThread.awaitWork();
    scanner.setDelegate(nullptr);
    drain();
    EXPECT_THAT(delegate.calls, IsEmpty());
}

TEST_F(ScannerRunsTest, AReportOnItsWayWhileTheScanIsCancelledIsDropped)
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

TEST_F(ScannerRunsTest, TheScannerMayBeDroppedRightAfterItWasCancelled)
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

TEST_F(ScannerRunsTest, AScannerCanBeStartedAgain)
{
    Scanner& scanner = scannerOf("a:5");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    delegate.calls.clear();
    scanner.scan(Url("/other", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->origin(), "/other");
}

TEST_F(ScannerRunsTest, StartingAgainResetsTheProgressButNotTheFigures)
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

TEST_F(ScannerRunsTest, StartingAgainForgetsTheTreeAndTheHomes)
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

TEST_F(ScannerRunsTest, ARunThatIsReplacedDeliversNothing)
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

TEST_F(ScannerRunsTest, AfterACancelledRunANewOneEndsAloneWithItsOwnTree)
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

TEST_F(ScannerRunsTest, WhereThereIsNoThreadForItTheScanFailsWithTheReason)
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

TEST_F(ScannerRunsTest, AFailureOnItsWayWhileTheScanIsCancelledIsDropped)
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

} // namespace
} // namespace tessera
