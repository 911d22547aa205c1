// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/PreviewThreads.h"

#include "support/Machine/WithoutThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace tessera {
namespace {

using namespace std::chrono_literals;

TEST(PreviewThreads, AreWaitedFor)
{
    const auto threads = PreviewThreads::make();
    std::atomic<int> done = 0;
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(threads->start([&done] { ++done; }));
    }
    EXPECT_TRUE(threads->waitForEnd(60s));
    EXPECT_EQ(done, 3);
}

TEST(PreviewThreads, OneThatIsStuckIsLeftAlone)
{
    auto threads = PreviewThreads::make();
    const std::weak_ptr<PreviewThreads> watched = threads;
    std::promise<void> answer;
    EXPECT_FALSE(threads->start([answered = answer.get_future().share()] { answered.wait(); }));
    EXPECT_FALSE(threads->waitForEnd(0ms));
    threads.reset();
    EXPECT_FALSE(watched.expired()) << "the stuck thread still uses it";
    answer.set_value();
}

TEST(PreviewThreads, OneThatHadAnEndTakesItsWorkWithIt)
{
    const auto threads = PreviewThreads::make();
    const auto held = std::make_shared<int>(1);
    EXPECT_FALSE(threads->start([held] {}));
    EXPECT_TRUE(threads->waitForEnd(60s));
    EXPECT_EQ(held.use_count(), 1);
}

TEST(PreviewThreads, OneThatCouldNotBeStartedIsNotWaitedFor)
{
    const auto threads = PreviewThreads::make();
    std::error_code error;
    EXPECT_TRUE(test::withoutThreads([&] { error = threads->start([] {}); }));
    EXPECT_EQ(error, std::errc::resource_unavailable_try_again);
    EXPECT_TRUE(threads->waitForEnd(0ms));
}

} // namespace
} // namespace tessera
