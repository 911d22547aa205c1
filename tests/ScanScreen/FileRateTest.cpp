// SPDX-License-Identifier: MIT
#include "ScanScreen/FileRate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;

struct Shown {
    int report = 0; ///< 1 for the first one
    long rate = 0;

    bool operator==(const Shown&) const = default;
};

/// What is shown of `count` reports, 0.5 s and `objectsPerReport` apart.
std::vector<Shown> shownOf(FileRate& rate, int count, std::uint64_t objectsPerReport)
{
    std::vector<Shown> shown;
    for (int report = 1; report <= count; ++report) {
        const auto index = static_cast<std::uint64_t>(report);
        if (const auto value = rate.add(1000 + 0.5 * report, index * objectsPerReport)) {
            shown.push_back({report, *value});
        }
    }
    return shown;
}

TEST(FileRate, ShowsNothingDuringTheFirstNineteenReports)
{
    FileRate rate;
    EXPECT_TRUE(shownOf(rate, 19, 100).empty());
}

TEST(FileRate, ShowsTheRateAtTheTwentiethReportAndThenAtEveryFifth)
{
    FileRate rate;
    EXPECT_THAT(
        shownOf(rate, 34, 100), ElementsAre(Shown{20, 200}, Shown{25, 200}, Shown{30, 200}));
}

TEST(FileRate, MeasuresFromTheOldestOfTheLastTwentyReports)
{
    FileRate rate;
    for (int report = 0; report < 19; ++report) {
        EXPECT_FALSE(rate.add(report, 0).has_value());
    }
    // 19 seconds lie between the first report and the twentieth.
    EXPECT_EQ(rate.add(19, 1900), 100);
    for (int report = 20; report < 24; ++report) {
        EXPECT_FALSE(rate.add(report, 1900).has_value());
    }
    // The oldest is now that of second 5.
    EXPECT_EQ(rate.add(24, 3800), 200);
}

TEST(FileRate, IsCutToAWholeNumber)
{
    FileRate rate;
    for (int report = 0; report < 19; ++report) {
        EXPECT_FALSE(rate.add(report, 0).has_value());
    }
    EXPECT_EQ(rate.add(19, 37), 1);
}

TEST(FileRate, StartsEmptyAgain)
{
    FileRate rate;
    EXPECT_EQ(shownOf(rate, 20, 100).size(), 1U);
    rate.restart();
    EXPECT_THAT(shownOf(rate, 20, 10), ElementsAre(Shown{20, 20}));
}

TEST(FileRate, AClockThatStandsStillShowsNothing)
{
    FileRate rate;
    for (int report = 0; report < 40; ++report) {
        EXPECT_FALSE(rate.add(7, static_cast<std::uint64_t>(report)).has_value());
    }
}

} // namespace
} // namespace tessera
