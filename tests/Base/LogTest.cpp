// SPDX-License-Identifier: MIT
#include "Base/Log.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(Log, AMessageIsOneLineOnStandardError)
{
    testing::internal::CaptureStderr();
    logLine("%d of '%s'", 7, "a\nb");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "7 of 'a\\x0ab'\n");
}

TEST(Log, ANameCommandsNoTerminal)
{
    testing::internal::CaptureStderr();
    logLine(
        "left out '%s'",
        "\x9B"
        "31mraw\xC2\x9B"
        "0m");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "left out '\\x9b31mraw\\xc2\\x9b0m'\n");
}

} // namespace
} // namespace tessera
