// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/ExecutableFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tessera {

TEST(ExecutableFolder, HoldsThisProgram)
{
    EXPECT_TRUE(std::filesystem::exists(executableFolder() + "/tessera_platform_tests"));
}

} // namespace tessera
