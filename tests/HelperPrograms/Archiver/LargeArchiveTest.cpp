// SPDX-License-Identifier: MIT
// Archives beyond what the format's first version could hold.
#include "HelperPrograms/Archiver/Archives.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <string>

namespace tessera::test {
namespace {

constexpr int kFiles = 70'000;
constexpr off_t kFiveGigabytes = 5'000'000'000;

TEST(LargeArchive, A70000FilesFolderPasses)
{
    const TempTree tree(TempTree::fastParent());
    const TempTree out;
    tree.makeFolder("X");
    for (int i = 0; i < kFiles; ++i) {
        tree.makeFile("X/" + std::to_string(i));
    }
    const std::string target = out.pathOf("X.zip");
    ASSERT_EQ(makeArchive(tree.pathOf("X"), target).exitStatus, 0);
    EXPECT_EQ(depthOfArchive(target), "70001 1");
    EXPECT_EQ(runTool("unzip", {"-tqq", target}).exitStatus, 0);
    EXPECT_EQ(runTool("bsdtar", {"-tf", target}).exitStatus, 0);
}

/// Archives folders inside each other, each with an empty folder beside it.
std::string archiveChain(std::size_t depth)
{
    const TempTree tree;
    const TempTree out;
    tree.makeChain(depth, "s");
    const std::string target = out.pathOf("X.zip");
    const ProgramResult result = makeArchive(tree.pathOf("d"), target);
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    return depthOfArchive(target);
}

TEST(LargeArchive, AChainOf3000FoldersPasses)
{
    EXPECT_EQ(archiveChain(3'000), "5999 2999");
}

TEST(NightlyLargeArchive, AChainOf10000FoldersPasses)
{
    EXPECT_EQ(archiveChain(10'000), "19999 9999");
}

TEST(NightlyLargeArchive, A5GigabyteSparseFilePasses)
{
    const TempTree tree;
    const TempTree out;
    tree.makeSparseFile("X", kFiveGigabytes);
    const std::string target = out.pathOf("X.zip");
    ASSERT_EQ(makeArchive(tree.pathOf("X"), target).exitStatus, 0);
    EXPECT_EQ(linesOfArchive(target), linesOfTree(tree.pathOf("X")));
    EXPECT_EQ(runTool("unzip", {"-tqq", target}).exitStatus, 0);
    EXPECT_EQ(runTool("bsdtar", {"-xOf", target, "X"}).exitStatus, 0);
}

} // namespace
} // namespace tessera::test
