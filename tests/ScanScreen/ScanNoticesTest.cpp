// SPDX-License-Identifier: MIT
#include "ScanningViewControllerFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Scans while no window is in front, an item a second.
class ScanNoticesTest : public test::ScanningViewControllerFixture {
protected:
    ScanNoticesTest() { secondsPerItem = 1; }
};

TEST_F(ScanNoticesTest, ALongScanIsToldOfWithTheFolderAndItsSize)
{
    scanToEnd(test::filesText(20), "/Users/me/some\xFF\n");

    EXPECT_THAT(
        notifications.shown,
        ElementsAre(
            Notification{"The scan is finished", "[/Users/me/some\uFFFD\u240A] takes 20 KB."}));
}

TEST_F(ScanNoticesTest, PlaceholdersInANameStayWhatTheyAre)
{
    scanToEnd(test::filesText(20), "/%2 %1");

    ASSERT_EQ(notifications.shown.size(), 1U);
    EXPECT_EQ(notifications.shown.front().text, "[/%2 %1] takes 20 KB.");
}

TEST_F(ScanNoticesTest, AShortScanIsNotToldOf)
{
    scanToEnd(test::filesText(3));

    EXPECT_THAT(notifications.shown, IsEmpty());
}

TEST_F(ScanNoticesTest, AScanThatTheUserCancelsIsNotToldOf)
{
    secondsPerItem = 60;
    start(test::filesText(40));
    runUntil([this] { return !tile.displayed.empty(); });
    controller->stopScan();
    runUntilIdle();

    EXPECT_THAT(posted, ElementsAre("cancelled"));
    EXPECT_THAT(notifications.shown, IsEmpty());
}

TEST_F(ScanNoticesTest, AScanThatFoundNothingAfterLongSaysWhy)
{
    problem = std::make_error_code(std::errc::no_such_file_or_directory);
    makeScanner("");
    controller->startScanning(Url("/Users/me/gone", true));
    // Nothing has been heard of the scan yet, but it may itself have moved the clock.
    system->scanClock = system->scanClock.load() + 100;
    runToEnd();

    ASSERT_EQ(notifications.shown.size(), 1U);
    EXPECT_EQ(notifications.shown.front().title, "The folder cannot be scanned");
}

} // namespace
} // namespace tessera
