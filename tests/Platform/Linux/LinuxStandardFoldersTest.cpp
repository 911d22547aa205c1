// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxStandardFolders.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(LinuxStandardFolders, AreUrlsOfDirectories)
{
    EXPECT_EQ(LinuxStandardFolders().localApplications().absoluteString(), "file:///opt/");
    EXPECT_EQ(LinuxStandardFolders().localUsers().absoluteString(), "file:///home/");
}

} // namespace
} // namespace tessera
