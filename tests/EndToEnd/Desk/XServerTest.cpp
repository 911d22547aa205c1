// SPDX-License-Identifier: MIT
#include "XServer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

TEST(XServer, LeavesNothingOnTheDisk)
{
    std::string number;
    {
        const XServer server;
        number = server.display().substr(1);
        ASSERT_TRUE(std::filesystem::exists("/tmp/.X11-unix/X" + number));
    }
    EXPECT_FALSE(std::filesystem::exists("/tmp/.X11-unix/X" + number));
    EXPECT_FALSE(std::filesystem::exists("/tmp/.X" + number + "-lock"));
}

} // namespace
} // namespace tessera::test
