// SPDX-License-Identifier: MIT
#include "Desktop/OpenFiles.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

OpenFilesAnswer wholeAnswer(const std::vector<std::optional<std::uint64_t>>& sizes)
{
    OpenFilesAnswer answer;
    answer.isCutShort = false;
    for (const auto& size : sizes) {
        answer.files.push_back({{1, answer.files.size()}, size, {}});
    }
    return answer;
}

TEST(OpenFilesAnswer, AddsUpWhatItsFilesTake)
{
    EXPECT_EQ(wholeAnswer({4096, 512}).allocatedBytes(), 4608U);
    EXPECT_EQ(wholeAnswer({4096, std::nullopt, 512}).allocatedBytes(), 4608U);
    EXPECT_EQ(wholeAnswer({}).allocatedBytes(), 0U);
}

TEST(OpenFilesAnswer, AddsUpToNoMoreThanTheLargestSize)
{
    constexpr std::uint64_t kLargest = 0x7FFF'FFFF'FFFF'FFFF;
    EXPECT_EQ(wholeAnswer({kLargest, 1}).allocatedBytes(), kLargest);
    EXPECT_EQ(wholeAnswer({~std::uint64_t{0}, 5}).allocatedBytes(), kLargest);
    EXPECT_EQ(wholeAnswer({5, kLargest - 5}).allocatedBytes(), kLargest);
}

TEST(OpenFilesAnswer, IsExactWhereAllIsKnown)
{
    EXPECT_FALSE(wholeAnswer({4096}).isAtLeast());
    EXPECT_FALSE(wholeAnswer({}).isAtLeast());
}

TEST(OpenFilesAnswer, IsAtLeastSoMuchWhereAnythingIsNotKnown)
{
    EXPECT_TRUE(OpenFilesAnswer().isAtLeast());
    EXPECT_TRUE(wholeAnswer({4096, std::nullopt}).isAtLeast());
    OpenFilesAnswer unreadable = wholeAnswer({});
    unreadable.unreadableProcesses = 1;
    EXPECT_TRUE(unreadable.isAtLeast());
    OpenFilesAnswer hidden = wholeAnswer({});
    hidden.hidesProcesses = true;
    EXPECT_TRUE(hidden.isAtLeast());
    OpenFilesAnswer layered = wholeAnswer({});
    layered.hasFilesInLayers = true;
    EXPECT_TRUE(layered.isAtLeast());
}

} // namespace
} // namespace tessera
