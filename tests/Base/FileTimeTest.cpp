// SPDX-License-Identifier: MIT
#include "Base/FileTime.h"

#include <gtest/gtest.h>

#include <chrono>

namespace tessera {
namespace {

TEST(FileTime, NanosecondsDecideWithinASecond)
{
    EXPECT_LT((FileTime{5, 900}), (FileTime{6, 1}));
    EXPECT_LT((FileTime{5, 1}), (FileTime{5, 2}));
    EXPECT_LT((FileTime{-1, 0}), (FileTime{0, 0}));
    EXPECT_FALSE((FileTime{5, 1}) < (FileTime{5, 1}));
    EXPECT_FALSE((FileTime{6, 1}) < (FileTime{5, 900}));
}

TEST(FileTime, TheTimeBeforeChangesIsTwoTicksAgo)
{
    using namespace std::chrono;
    const auto now
        = [] { return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count(); };
    const std::int64_t before = now();
    const FileTime time = timeBeforeChanges();
    const std::int64_t after = now();
    const std::int64_t told = time.seconds * 1'000'000'000 + time.nanoseconds;
    EXPECT_GE(told, before - 20'000'000);
    EXPECT_LE(told, after - 20'000'000);
    EXPECT_LT(time.nanoseconds, 1'000'000'000U);
}

TEST(FileTime, TheTimeAfterChangesIsTheNextMoment)
{
    using namespace std::chrono;
    const auto now
        = [] { return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count(); };
    const std::int64_t before = now();
    const FileTime time = timeAfterChanges();
    const std::int64_t after = now();
    const std::int64_t told = time.seconds * 1'000'000'000 + time.nanoseconds;
    EXPECT_GT(told, before);
    EXPECT_LE(told, after + 1);
}

} // namespace
} // namespace tessera
