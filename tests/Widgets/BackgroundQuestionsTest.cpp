// SPDX-License-Identifier: MIT
#include "Widgets/BackgroundQuestions.h"

#include "support/Machine/WithoutThreads.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr std::chrono::hours kLong{1};

TEST(BackgroundQuestions, WhatIsAnsweredSoonIsHandedOnWithinAMoment)
{
    BackgroundQuestions questions;
    int told = 0;
    questions.ask<int>([] { return 7; }, [&told](const int& answer) { told = answer; });
    questions.waitBriefly(kLong);
    EXPECT_EQ(told, 7);
}

TEST(BackgroundQuestions, WhereThereIsNoThreadNobodyWaitsForAnAnswer)
{
    bool isTold = false;
    const bool isDone = test::withoutThreads([&isTold] {
        BackgroundQuestions questions;
        questions.ask<int>([] { return 7; }, [&isTold](const int&) { isTold = true; });
        questions.waitBriefly(kLong);
    });
    EXPECT_TRUE(isDone);
    EXPECT_FALSE(isTold);
}

} // namespace
} // namespace tessera
