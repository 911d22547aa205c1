// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerAccount.h"

#include "LedgerDisk.h"
#include "Model/TimeMachine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tessera {
namespace {

using Kind = LedgerLine::Kind;

std::int64_t bytesOf(const LedgerAccount& account, Kind kind)
{
    return std::ranges::find(account.lines, kind, &LedgerLine::kind)->bytes;
}

TEST(LedgerAccount, TellsFilesFromFoldersOwnBlocks)
{
    const auto disk = test::makeLedgerDisk(test::ledgerDiskSizes());
    const auto account = ledgerAccount(
        *disk, foundSpace(*disk), {.sizes = test::ledgerDiskSizes(), .open = {}, .covered = {}});
    ASSERT_TRUE(account);
    EXPECT_EQ(bytesOf(*account, Kind::Files), 600);
    EXPECT_EQ(bytesOf(*account, Kind::Folders), 512 + 1024);
    EXPECT_EQ(bytesOf(*account, Kind::Rest), 10'000 - 600 - 1536 - 500 - 3500);
}

TEST(LedgerAccount, TheBoxOfBackupsIsNoFile)
{
    const auto disk = test::makeLedgerDisk(test::ledgerDiskSizes());
    auto backups = makeNode<TimeMachine>({});
    backups->setTotalAllocation(3000);
    disk->addChild(std::move(backups));
    const auto account = ledgerAccount(
        *disk, foundSpace(*disk), {.sizes = test::ledgerDiskSizes(), .open = {}, .covered = {}});
    EXPECT_EQ(bytesOf(*account, Kind::Files), 600);
}

/// What is in the mount is of another disk.
TEST(LedgerAccount, FoldersInWhatIsMountedAreNotOfTheDisk)
{
    const auto disk = test::makeLedgerDisk(test::ledgerDiskSizes());
    const File& mounted = *disk->children()[0];
    disk->findings().addMounted(mounted);
    disk->findings().addUnreadable({"/mnt/disk/docs", test::systemError(EACCES), &mounted});
    disk->findings().addUnreadable({"/mnt/disk", test::systemError(EIO), disk.get()});
    const auto account = ledgerAccount(
        *disk, foundSpace(*disk), {.sizes = test::ledgerDiskSizes(), .open = {}, .covered = {}});
    ASSERT_TRUE(account);
    EXPECT_EQ(
        std::ranges::find(account->lines, Kind::UnreadableFolders, &LedgerLine::kind)->count, 1U);
    ASSERT_EQ(account->unseen.unreadable.size(), 1U);
    EXPECT_EQ(account->unseen.unreadable[0].path, "/mnt/disk");
}

TEST(LedgerAccount, IsNotThereWithoutAnAnswer)
{
    const auto disk = test::makeLedgerDisk(test::ledgerDiskSizes());
    EXPECT_FALSE(ledgerAccount(*disk, {}, {}));
}

TEST(LedgerAccount, IsNotThereForAFileSystemWithoutASize)
{
    const auto disk = test::makeLedgerDisk(test::ledgerDiskSizes());
    EXPECT_FALSE(ledgerAccount(
        *disk, foundSpace(*disk), {.sizes = FileSystemSizes{}, .open = {}, .covered = {}}));
}

/// The sums are kept while the tree is made, and not asked of it.
struct RandomDisk {
    explicit RandomDisk(unsigned seed)
        : random(seed)
    {
        for (unsigned i = 0; i < 40; ++i) {
            const std::uint64_t own = 512ULL * below(100);
            const std::uint64_t file = below(1'000'000'000);
            disk->addChild(test::makeLedgerFolder("f" + std::to_string(i), own, file));
            folders += own;
            files += file;
        }
        const std::uint64_t block = 4096;
        sizes.totalBytes = block * below(100'000'000);
        sizes.freeBytes = std::min(block * below(50'000'000), sizes.totalBytes);
        sizes.availableBytes = sizes.freeBytes / 20 * 19;
        sizes.reservedBytes = sizes.freeBytes - sizes.availableBytes;
        disk->refreshVolume(sizes);
    }

    std::uint64_t below(std::uint64_t limit) { return 1 + random() % limit; }

    std::mt19937_64 random;
    std::unique_ptr<Volume> disk = makeNode<Volume>("disk");
    FileSystemSizes sizes;
    std::uint64_t files = 0;
    std::uint64_t folders = 0;
};

TEST(LedgerAccount, AddsUpToTheSizeForAnyFacts)
{
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomDisk made(seed);
        OpenFilesAnswer open;
        open.files.push_back({.identity = {}, .allocatedBytes = made.below(90'000), .holders = {}});
        const auto account = ledgerAccount(
            *made.disk,
            foundSpace(*made.disk),
            {.sizes = made.sizes, .open = open, .covered = std::nullopt});
        ASSERT_TRUE(account);
        std::uint64_t sum = 0;
        for (const LedgerLine& line : account->lines) {
            sum += static_cast<std::uint64_t>(line.bytes);
        }
        EXPECT_EQ(sum, made.sizes.totalBytes);
        EXPECT_EQ(static_cast<std::uint64_t>(bytesOf(*account, Kind::Files)), made.files);
        EXPECT_EQ(static_cast<std::uint64_t>(bytesOf(*account, Kind::Folders)), made.folders);
    }
}

} // namespace
} // namespace tessera
