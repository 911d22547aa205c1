// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxCoveredFolders.h"

#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::Optional;

std::vector<std::string> coveredInside(const std::string& folder)
{
    std::vector<std::string> paths;
    for (const CoveredFolder& covered :
         LinuxCoveredFolders().coveredInside(folder).value_or(std::vector<CoveredFolder>())) {
        paths.push_back(covered.path);
    }
    return paths;
}

TEST(LinuxCoveredFolders, AreThoseThatSomethingIsMountedOver)
{
    if (!test::OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    const test::TempTree tree;
    tree.makeFolder("memory");
    tree.makeFolder("again");
    tree.makeFolder("plain");
    test::OwnMounts mounts;
    mounts.mountMemory(tree.pathOf("memory"));
    mounts.bind(tree.pathOf("plain"), tree.pathOf("again"));
    tree.makeFolder("memory/inner");
    mounts.mountMemory(tree.pathOf("memory/inner"));

    EXPECT_THAT(
        coveredInside(tree.path()), ElementsAre(tree.pathOf("memory"), tree.pathOf("again")));
    EXPECT_THAT(coveredInside(tree.pathOf("memory")), ElementsAre(tree.pathOf("memory/inner")));
}

TEST(LinuxCoveredFolders, TellWhatCoversThem)
{
    const test::TempTree tree;
    tree.writeFile(
        "table",
        "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n2 1 0:5 / /proc rw - proc proc rw\n"
        "3 1 8:1 /a /b rw - ext4 /dev/sda1 rw\n");
    EXPECT_THAT(
        LinuxCoveredFolders(tree.pathOf("table")).coveredInside("/"),
        Optional(ElementsAre(
            CoveredFolder{"/proc", "proc", makedev(0, 5)},
            CoveredFolder{"/b", "ext4", makedev(8, 1)})));
}

TEST(LinuxCoveredFolders, AreNotKnownWithoutATable)
{
    EXPECT_FALSE(LinuxCoveredFolders("/no/such/table").coveredInside("/"));
}

TEST(LinuxCoveredFolders, AreNotKnownWhereTheTableDoesNotNameTheFoldersMount)
{
    const test::TempTree tree;
    tree.writeFile("table", "1 0 8:1 / /mnt rw - ext4 /dev/sda1 rw\n");
    EXPECT_FALSE(LinuxCoveredFolders(tree.pathOf("table")).coveredInside("/home"));
    EXPECT_TRUE(LinuxCoveredFolders(tree.pathOf("table")).coveredInside("/mnt/a"));
}

} // namespace
} // namespace tessera
