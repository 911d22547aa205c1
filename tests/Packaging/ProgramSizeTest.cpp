// SPDX-License-Identifier: MIT
#include "Packaging/BuiltPrograms.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tessera {
namespace {

constexpr std::uintmax_t kLimitBytes = 5'000'000;

TEST(ProgramSize, IsBelowFiveMegabytesWithoutTheSymbolsThatNoUserGets)
{
    const test::TempTree scratch;
    for (const std::string& program : test::builtPrograms()) {
        const std::string stripped = scratch.pathOf("program");
        ASSERT_EQ(test::runProgram("strip", {"-o", stripped, program}).exitStatus, 0);

        EXPECT_LT(std::filesystem::file_size(stripped), kLimitBytes) << program;
    }
}

} // namespace
} // namespace tessera
