// SPDX-License-Identifier: MIT
#include "Scanning/ScanWorkers.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

namespace tessera {
namespace {

constexpr std::chrono::milliseconds kShort{1};

TEST(ScanWorkers, WithoutAnyNobodyWaits)
{
    EXPECT_TRUE(ScanWorkers().waitForNone(std::chrono::milliseconds(0)));
}

TEST(ScanWorkers, OneThatIsStuckIsWaitedForNoLongerThanAllowed)
{
    std::vector<ScanWorkers::Work> started;
    const auto workers = std::make_shared<ScanWorkers>(
        [&started](ScanWorkers::Work work) { started.push_back(std::move(work)); });
    EXPECT_FALSE(workers->start([] {}));
    EXPECT_FALSE(workers->start([] {}));
    started[0]();
    EXPECT_FALSE(workers->waitForNone(kShort));
    started[1]();
    EXPECT_TRUE(workers->waitForNone(kShort));
}

TEST(ScanWorkers, WhatOneHeldOnToIsGoneWhenItCountsAsEnded)
{
    std::vector<ScanWorkers::Work> started;
    const auto workers = std::make_shared<ScanWorkers>(
        [&started](ScanWorkers::Work work) { started.push_back(std::move(work)); });
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> alive = held;
    EXPECT_FALSE(workers->start([held = std::move(held)] {}));
    started[0]();
    ASSERT_TRUE(workers->waitForNone(kShort));
    EXPECT_TRUE(alive.expired());
}

TEST(ScanWorkers, OneThatCouldNotBeStartedIsNotWaitedFor)
{
    const auto workers = std::make_shared<ScanWorkers>([](const ScanWorkers::Work& /*work*/) {
        throw std::system_error(EAGAIN, std::generic_category());
    });
    EXPECT_EQ(workers->start([] {}), std::errc::resource_unavailable_try_again);
    EXPECT_TRUE(workers->waitForNone(kShort));
}

} // namespace
} // namespace tessera
