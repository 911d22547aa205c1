// SPDX-License-Identifier: MIT
#include "ScannerFixture.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace tessera {
namespace {

using testing::ElementsAre;

class ScannerProgressTest : public test::ScannerFixture { };

TEST_F(ScannerProgressTest, StartingSetsTheProgressToItsStart)
{
    Scanner& scanner = scannerOf("a:1");
    scanner.scan(Url("/data", true));
    EXPECT_EQ(scanner.currentURL(), Url("/data", true));
    EXPECT_EQ(scanner.percentComplete(), 0.0);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
}

TEST_F(ScannerProgressTest, ReportsOnlyWhenMoreThanATenthOfASecondHasPassed)
{
    Scanner& scanner = scannerOf("a:1 b:1 c:1 d:1");
    passAndDeliverBeforeEachItem(0.0625);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(delegate.calls, ElementsAre("updated", "updated", "ended"));
    EXPECT_EQ(delegate.updates[0].path, "/data/b");
    EXPECT_EQ(delegate.updates[1].path, "/data/d");
}

TEST_F(ScannerProgressTest, ATenthOfASecondExactlyIsTooEarlyForAReport)
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

TEST_F(ScannerProgressTest, AFoldersProgressIsTheShareOfItsUpperTwoLevels)
{
    Scanner& scanner = scannerOf("f/ ( g/ ( deep:8 ) ) c:2");
    passAndDeliverBeforeEachItem(1.0);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    std::vector<double> percents;
    for (const test::ScanUpdate& update : delegate.updates) {
        percents.push_back(update.percent);
    }
    EXPECT_THAT(percents, ElementsAre(1.0 / 3.0, 2.0 / 3.0, 2.0 / 3.0, 1.0));
    EXPECT_EQ(delegate.updates[2].path, "/data/f/g/deep");
    EXPECT_EQ(delegate.updates[2].objects, 3U);
    EXPECT_EQ(delegate.updates[2].bytes, 8U);
}

TEST_F(ScannerProgressTest, AFoldersProgressPassesOneWhenItemsAppearAfterTheCount)
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

TEST_F(ScannerProgressTest, AVolumesProgressIsTheShareOfItsUsedBytesAndNotClamped)
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

TEST_F(ScannerProgressTest, TheProgressOfAHomeThatIsAVolumeIsNotGuarded)
{
    resourceValues.volumes = {"/home/me"};
    Scanner& scanner = scannerOf("none:0 a:350");
    passAndDeliverBeforeEachItem(1.0);
    scanner.scan(Url("/home/me", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_TRUE(std::isnan(delegate.updates[0].percent));
    EXPECT_TRUE(std::isinf(delegate.updates[1].percent));
}

TEST_F(ScannerProgressTest, AScanShorterThanTheReportIntervalLeavesTheProgressAtItsStart)
{
    Scanner& scanner = scannerOf("a:350");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(scanner.objectsRead(), 0U);
    EXPECT_EQ(scanner.allocationRead(), 0U);
    EXPECT_EQ(scanner.percentComplete(), 0.0);
    EXPECT_EQ(scanner.currentURL().path(), "/data");
}

TEST_F(ScannerProgressTest, TheLastReportStaysAfterTheEnd)
{
    Scanner& scanner = scannerOf("a:350 b:50 c:1");
    passBeforeEachItem(0.0625);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(scanner.objectsRead(), 2U);
    EXPECT_EQ(scanner.allocationRead(), 400U);
    EXPECT_EQ(scanner.currentURL().path(), "/data/b");
}

TEST_F(ScannerProgressTest, WithoutADelegateNothingIsReported)
{
    Scanner& scanner = scannerOf("a:350 b:50");
    passBeforeEachItem(1.0);
    scanner.setDelegate(nullptr);
    scanner.scan(Url("/data", true));
    workers->waitForNone();
    EXPECT_EQ(scanner.objectsRead(), 0U);
    EXPECT_EQ(scanner.topFolder()->totalAllocation(), 400U);
}

} // namespace
} // namespace tessera
