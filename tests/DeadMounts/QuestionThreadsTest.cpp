// SPDX-License-Identifier: MIT
#include "DeadMounts/QuestionThreads.h"

#include "DeadMounts/DeadMountLimits.h"
#include "support/Machine/WithoutThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace tessera {
namespace {

using namespace std::chrono_literals;

TEST(QuestionThreads, AreWaitedFor)
{
    const auto threads = QuestionThreads::make();
    std::atomic<int> done = 0;
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(threads->start([&done] { ++done; }).error);
    }
    EXPECT_TRUE(threads->waitForAll(60s));
    EXPECT_EQ(done, 3);
}

TEST(QuestionThreads, OneThatIsStuckIsLeftAlone)
{
    auto threads = QuestionThreads::make();
    const std::weak_ptr<QuestionThreads> watched = threads;
    std::promise<void> answer;
    EXPECT_FALSE(
        threads->start([answered = answer.get_future().share()] { answered.wait(); }).error);
    EXPECT_FALSE(threads->waitForAll(0ms));
    threads.reset();
    EXPECT_FALSE(watched.expired()) << "the stuck thread still uses it";
    answer.set_value();
}

TEST(QuestionThreads, OneThatHadAnEndTakesItsWorkWithIt)
{
    const auto threads = QuestionThreads::make();
    const auto held = std::make_shared<int>(1);
    EXPECT_FALSE(threads->start([held] {}).error);
    EXPECT_TRUE(threads->waitForAll(60s));
    EXPECT_EQ(held.use_count(), 1);
}

TEST(QuestionThreads, OneThatCouldNotBeStartedIsNotWaitedFor)
{
    const auto threads = QuestionThreads::make();
    std::error_code error;
    EXPECT_TRUE(test::withoutThreads([&] { error = threads->start([] {}).error; }));
    EXPECT_EQ(error, std::errc::resource_unavailable_try_again);
    EXPECT_TRUE(threads->waitForAll(0ms));
}

TEST(QuestionThreads, TheEndOfOneIsHeardOf)
{
    const auto threads = QuestionThreads::make();
    const auto [thread, error] = threads->start([] {});
    EXPECT_FALSE(error);
    EXPECT_TRUE(threads->waitFor(*thread, QuestionThreads::Clock::now() + 60s));
    EXPECT_TRUE(threads->hasEnded(*thread));
}

TEST(QuestionThreads, WhileManyAreStuckNoMoreAreStarted)
{
    const auto threads = QuestionThreads::make();
    std::promise<void> answer;
    const std::shared_future<void> answered = answer.get_future().share();
    for (std::size_t i = 0; i < kMostStuckThreads; ++i) {
        const auto [thread, error] = threads->start([answered] { answered.wait(); });
        ASSERT_FALSE(error);
        EXPECT_FALSE(threads->waitFor(*thread, QuestionThreads::Clock::now()));
    }
    EXPECT_EQ(threads->start([] {}).error, std::errc::resource_unavailable_try_again);
    answer.set_value();
    EXPECT_TRUE(threads->waitForAll(60s));
    EXPECT_FALSE(threads->start([] {}).error);
}

TEST(QuestionThreads, ThoseThatNobodyGaveUpMayBeMore)
{
    const auto threads = QuestionThreads::make();
    std::promise<void> answer;
    const std::shared_future<void> answered = answer.get_future().share();
    for (std::size_t i = 0; i <= kMostStuckThreads; ++i) {
        EXPECT_FALSE(threads->start([answered] { answered.wait(); }).error);
    }
    answer.set_value();
    EXPECT_TRUE(threads->waitForAll(60s));
}

} // namespace
} // namespace tessera
