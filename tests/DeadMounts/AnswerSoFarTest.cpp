// SPDX-License-Identifier: MIT
#include "DeadMounts/AnswerSoFar.h"

#include "support/Machine/WithoutThreads.h"

#include <gtest/gtest.h>

#include <future>

namespace tessera {
namespace {

using namespace std::chrono_literals;
using Clock = QuestionThreads::Clock;

void set(AnswerSoFar<int>& soFar, int value)
{
    soFar.change([value](int& answer) { answer = value; });
}

TEST(AnswerUntil, GivesAllThatAThreadFoundInTime)
{
    const auto threads = QuestionThreads::make();
    const int answer = answerUntil<int>(
        *threads, Clock::now() + 60s, {}, [](AnswerSoFar<int>& soFar) { set(soFar, 7); });
    EXPECT_EQ(answer, 7);
}

TEST(AnswerUntil, DoesNotWaitForOneThatIsStuck)
{
    const auto threads = QuestionThreads::make();
    std::promise<void> life;
    const int answer = answerUntil<int>(
        *threads, Clock::now(), {}, [alive = life.get_future().share()](AnswerSoFar<int>& soFar) {
            alive.wait();
            set(soFar, 7);
        });
    EXPECT_EQ(answer, 0);
    life.set_value();
}

TEST(AnswerUntil, GivesWhatWasFoundWhenAStopComes)
{
    const auto threads = QuestionThreads::make();
    std::promise<void> life;
    std::stop_source stop;
    const int answer = answerUntil<int>(
        *threads,
        Clock::now() + 10min,
        stop.get_token(),
        [&stop, alive = life.get_future().share()](AnswerSoFar<int>& soFar) {
            set(soFar, 7);
            stop.request_stop();
            alive.wait();
            set(soFar, 8);
        });
    EXPECT_EQ(answer, 7);
    life.set_value();
    EXPECT_TRUE(threads->waitForAll(60s)) << "it used this test's stop";
}

TEST(AnswerUntil, GivesNothingWhereThereIsNoThread)
{
    const auto threads = QuestionThreads::make();
    int answer = 7;
    EXPECT_TRUE(test::withoutThreads([&] {
        answer = answerUntil<int>(
            *threads, Clock::now() + 60s, {}, [](AnswerSoFar<int>& soFar) { set(soFar, 8); });
    }));
    EXPECT_EQ(answer, 0);
}

TEST(AnswerSoFar, IsWhatWasFoundBeforeItWasAskedFor)
{
    AnswerSoFar<int> soFar;
    set(soFar, 7);
    const int copy = soFar.copy();
    set(soFar, 8);
    EXPECT_EQ(copy, 7);
    EXPECT_EQ(soFar.copy(), 8);
}

} // namespace
} // namespace tessera
