// SPDX-License-Identifier: MIT
// The folders' own blocks: with them, what a scan found is what another program finds.
#include "Ledger/FoundSpace.h"
#include "Ledger/SpaceLedger.h"
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"
#include "support/Machine/InChild.h"
#include "support/Machine/MountedImage.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/RandomDisk.h"
#include "support/Machine/ScanTree.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>
#include <sys/statvfs.h>

#include <cstdint>
#include <string_view>

namespace tessera::test {
namespace {

constexpr int kCannotMount = 77;

std::uint64_t ownAllocation(TopFolder& root, std::string_view path)
{
    return static_cast<Folder&>(at(root, path)).ownAllocation();
}

/// What has no place yet may take another number of blocks than once it has one.
void giveAllAPlace(const std::string& path)
{
    MountedImage::run("sync", {"-f", path});
}

void expectWhatDuFinds(const std::string& path)
{
    giveAllAPlace(path);
    const auto root = scanTree(path);
    const FoundSpace found = foundSpace(*root);
    EXPECT_EQ(found.files, root->totalAllocation());
    EXPECT_EQ(found.files + found.folders, bytesByDu(path));
    EXPECT_EQ(root->findings().unreadableCount(), 0U);
}

/// Names of one file, for some file systems have room for few files.
void makeCrowdedFolder(const TempTree& tree)
{
    constexpr int kNames = 50'000;
    tree.makeFolder("crowded");
    tree.makeFile("crowded/file", 1);
    for (int i = 1; i < kNames; ++i) {
        tree.makeHardLink("crowded/a rather long name " + std::to_string(i), "crowded/file");
    }
}

TEST(FolderBlocks, AreThoseOfTheDirectoryItself)
{
    const TempTree tree;
    tree.makeFolder("full");
    tree.makeFolder("full/empty");
    tree.makeFile("full/file", 100'000);
    const auto root = scanTree(tree.path());
    EXPECT_EQ(ownAllocation(*root, "full"), tree.allocatedBytes("full"));
    EXPECT_EQ(ownAllocation(*root, "full/empty"), tree.allocatedBytes("full/empty"));
}

TEST(FolderBlocks, OfTheRootAreKnownToo)
{
    const TempTree tree;
    EXPECT_EQ(scanTree(tree.path())->ownAllocation(), tree.allocatedBytes("."));
}

TEST(FolderBlocks, AreKnownHoweverFewHandlesAndHelpersThereAre)
{
    constexpr std::size_t kDepth = 600;
    const TempTree tree;
    tree.makeChain(kDepth, "sibling");
    const FoundSpace found = foundSpace(*scanTree(tree.path(), kOnDemand));
    EXPECT_EQ(found.folders, bytesByDu(tree.path()));
}

TEST(FolderBlocks, WithTheFilesAreWhatDuFinds)
{
    for (unsigned seed = 0; seed < 10; ++seed) {
        SCOPED_TRACE(seed);
        const TempTree tree;
        const RandomDisk disk(tree, seed);
        expectWhatDuFinds(tree.path());
    }
}

TEST(FolderBlocks, OfACrowdedFolderAreMany)
{
    const TempTree tree;
    tree.makeFolder("small");
    makeCrowdedFolder(tree);
    const auto root = scanTree(tree.path());
    EXPECT_EQ(ownAllocation(*root, "crowded"), tree.allocatedBytes("crowded"));
    expectWhatDuFinds(tree.path());
}

TEST(FolderBlocks, InMemoryAreWhatDuFinds)
{
    const TempTree tree;
    tree.makeFolder("memory");
    const int result = inChild([&] {
        if (!OwnMounts::enter()) {
            return kCannotMount;
        }
        OwnMounts mounts;
        mounts.mountMemory(tree.pathOf("memory"));
        const TempTree inMemory(tree.pathOf("memory"));
        const RandomDisk disk(inMemory, 1);
        makeCrowdedFolder(inMemory);
        expectWhatDuFinds(inMemory.path());
        return testing::Test::HasFailure() ? 1 : 0;
    });
    if (result == kCannotMount) {
        GTEST_SKIP() << "this process may not mount";
    }
    EXPECT_EQ(result, 0);
}

/// What is mounted in a folder is of another file system; what du -x counts there is nothing.
TEST(FolderBlocks, OfAMountInTheTreeAreNotOfThisFileSystem)
{
    const TempTree tree;
    tree.makeFolder("mount");
    tree.makeFile("mount/covered", 1);
    tree.makeFile("file", 1);
    const int result = inChild([&] {
        if (!OwnMounts::enter()) {
            return kCannotMount;
        }
        OwnMounts mounts;
        mounts.mountMemory(tree.pathOf("mount"));
        tree.makeFile("mount/file", 100'000);
        expectWhatDuFinds(tree.path());
        return testing::Test::HasFailure() ? 1 : 0;
    });
    if (result == kCannotMount) {
        GTEST_SKIP() << "this process may not mount";
    }
    EXPECT_EQ(result, 0);
}

TEST(FolderBlocks, OfAFolderThatMayNotBeOpenedAreKnown)
{
    const TempTree tree;
    tree.makeFolder("closed");
    tree.makeFolder("closed/inner");
    tree.setMode("closed", 0);
    const int result = asPlainUser([&] {
        const auto root = scanTree(tree.path());
        EXPECT_EQ(ownAllocation(*root, "closed"), tree.allocatedBytes("closed"));
        EXPECT_EQ(foundSpace(*root).folders, bytesByDu(tree.path()));
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

TEST(FolderBlocks, OfARootThatMayNotBeOpenedAreKnown)
{
    const TempTree tree;
    tree.makeFolder("closed");
    tree.makeSymbolicLink("link", "closed");
    tree.setMode("closed", 0);
    const int result = asPlainUser([&] {
        const std::uint64_t bytes = tree.allocatedBytes("closed");
        EXPECT_GT(bytes, 0U);
        EXPECT_EQ(scanTree(tree.pathOf("closed"))->ownAllocation(), bytes);
        EXPECT_EQ(scanTree(tree.pathOf("link"))->ownAllocation(), bytes);
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

class FolderBlocksOnADisk : public testing::TestWithParam<const char*> { };

TEST_P(FolderBlocksOnADisk, WithTheFilesAreWhatDuFinds)
{
    const MountedImage disk({GetParam()});
    if (!disk.problem().empty()) {
        GTEST_SKIP() << "no disk by " << GetParam() << " can be had here: " << disk.problem();
    }
    for (unsigned seed = 0; seed < 10; ++seed) {
        const TempTree tree(disk.path());
        const RandomDisk content(tree, seed);
        SCOPED_TRACE(seed);
        expectWhatDuFinds(tree.path());
    }
    const TempTree tree(disk.path());
    makeCrowdedFolder(tree);
    expectWhatDuFinds(disk.path());
}

/// The file system's own figures are the other side of the account.
TEST_P(FolderBlocksOnADisk, ExplainWhatIsUsed)
{
    const MountedImage disk({GetParam()});
    if (!disk.problem().empty()) {
        GTEST_SKIP() << "no disk by " << GetParam() << " can be had here: " << disk.problem();
    }
    const TempTree tree(disk.path());
    const RandomDisk content(tree, 1);
    giveAllAPlace(disk.path());
    struct statvfs values { };
    ASSERT_EQ(::statvfs(disk.path().c_str(), &values), 0);
    const FoundSpace found = foundSpace(*scanTree(disk.path()));
    const auto lines
        = spaceLedger({.sizes = sizesOf(values), .files = found.files, .folders = found.folders});
    ASSERT_TRUE(lines);
    std::int64_t sum = 0;
    std::int64_t rest = 0;
    for (const LedgerLine& line : *lines) {
        sum += line.bytes;
        rest = line.kind == LedgerLine::Kind::Rest ? line.bytes : rest;
    }
    EXPECT_EQ(sum, static_cast<std::int64_t>(values.f_blocks * values.f_frsize));
    EXPECT_GE(rest, 0);
    // Its own records are no part of its size; the others keep theirs in what they call used.
    if (GetParam() == std::string_view("mkfs.ext4")) {
        constexpr unsigned long kMostBlocks = 8;
        EXPECT_LE(rest, static_cast<std::int64_t>(kMostBlocks * values.f_frsize));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds,
    FolderBlocksOnADisk,
    testing::Values("mkfs.ext4", "mkfs.xfs", "mkfs.btrfs"),
    [](const testing::TestParamInfo<const char*>& kind) {
        return std::string(kind.param).substr(std::string_view("mkfs.").size());
    });

} // namespace
} // namespace tessera::test
