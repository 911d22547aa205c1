// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"

#include "Ledger/SpaceLedger.h"
#include "support/Machine/MountedImage.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <future>
#include <limits>
#include <memory>
#include <sstream>
#include <string>

namespace tessera {
namespace {

constexpr std::uint64_t kLargest = std::numeric_limits<std::int64_t>::max();

std::shared_ptr<const FileSystemQuestions> questions(std::chrono::milliseconds patience)
{
    return std::make_shared<const FileSystemQuestions>(patience);
}

FileSystemSizes sizesAt(const std::string& path)
{
    return LinuxFileSystemAttributes(questions(std::chrono::minutes(1)))
        .attributesOfFileSystem(path)
        .value_or(FileSystemSizes());
}

struct statvfs statvfsOf(std::uint64_t blocks, std::uint64_t free, std::uint64_t available)
{
    struct statvfs values { };
    values.f_bsize = 65536;
    values.f_frsize = 512;
    values.f_blocks = blocks;
    values.f_bfree = free;
    values.f_bavail = available;
    return values;
}

TEST(SizesOfStatvfs, AreCountedInFragments)
{
    const FileSystemSizes sizes = sizesOf(statvfsOf(1000, 300, 100));
    EXPECT_EQ(sizes.totalBytes, 512000U);
    EXPECT_EQ(sizes.freeBytes, 153600U);
    EXPECT_EQ(sizes.availableBytes, 51200U);
    EXPECT_EQ(sizes.reservedBytes, 102400U);
    EXPECT_EQ(sizes.blockBytes, 512U);
}

TEST(SizesOfStatvfs, NothingIsReservedWhereMoreIsAvailableThanFree)
{
    const FileSystemSizes sizes = sizesOf(statvfsOf(1000, 100, 300));
    EXPECT_EQ(sizes.reservedBytes, 0U);
    EXPECT_EQ(sizes.availableBytes, 153600U);
    EXPECT_EQ(sizes.freeBytes, 51200U);
}

TEST(SizesOfStatvfs, NeverWrapRound)
{
    const std::uint64_t all = std::numeric_limits<std::uint64_t>::max();
    const FileSystemSizes sizes = sizesOf(statvfsOf(all, all, kLargest / 512));
    EXPECT_EQ(sizes.totalBytes, kLargest);
    EXPECT_EQ(sizes.freeBytes, kLargest);
    EXPECT_EQ(sizes.availableBytes, kLargest / 512 * 512);
    EXPECT_EQ(sizes.reservedBytes, kLargest);
}

/// As network file systems do, and those whose server is a program.
TEST(SizesOfStatvfs, GiveNoAccountOfADiskThatClaimsMoreThanThereIs)
{
    const std::uint64_t all = std::numeric_limits<std::uint64_t>::max();
    const auto hasAccount = [](const struct statvfs& values) {
        SpaceFacts facts;
        facts.sizes = sizesOf(values);
        facts.files = 1000;
        return spaceLedger(facts).has_value();
    };
    EXPECT_TRUE(hasAccount(statvfsOf(1000, 300, 100)));
    EXPECT_FALSE(hasAccount(statvfsOf(all, all, all)));
    EXPECT_FALSE(hasAccount(statvfsOf(all / 512, 300, 100)));
    EXPECT_FALSE(hasAccount(statvfsOf(0, 0, 0)));
}

std::string whatDfSaysOfRoot()
{
    return test::runProgram("df", {"-B1", "--output=fstype,size", "/"}, {"LC_ALL=C"})
        .standardOutput;
}

TEST(LinuxFileSystemAttributes, SaysWhatDfSays)
{
    // Some disks grow and shrink with what others write to them.
    constexpr int kMostTries = 100;
    std::string before = whatDfSaysOfRoot();
    FileSystemSizes sizes = sizesAt("/");
    for (int i = 0; i < kMostTries && before != whatDfSaysOfRoot(); ++i) {
        before = whatDfSaysOfRoot();
        sizes = sizesAt("/");
    }
    std::istringstream lines(before);
    std::string header;
    std::getline(lines, header);
    std::string type;
    std::uint64_t total = 0;
    ASSERT_TRUE(lines >> type >> total) << before;
    if (!sizes.type.empty()) { // as it is where the root is no mount
        EXPECT_EQ(sizes.type, type);
    }
    EXPECT_EQ(sizes.totalBytes, total);
}

struct Reserve {
    std::uint64_t bytes = 0;
    std::uint64_t unit = 0;

    bool operator==(const Reserve& other) const = default;
};

/// What is free for the administrator alone, as stat(1) says.
Reserve reserveOfRoot()
{
    const test::ProgramResult stat
        = test::runProgram("stat", {"--file-system", "--format=%f %a %S", "/"});
    std::istringstream line(stat.standardOutput);
    std::uint64_t free = 0;
    std::uint64_t available = 0;
    Reserve reserve;
    EXPECT_TRUE(line >> free >> available >> reserve.unit) << stat.standardError;
    reserve.bytes = free > available ? (free - available) * reserve.unit : 0;
    return reserve;
}

TEST(LinuxFileSystemAttributes, ReservesWhatStatReserves)
{
    // Others write to the disk all the time, and some disks then reserve another amount.
    constexpr int kMostTries = 100;
    Reserve before = reserveOfRoot();
    FileSystemSizes sizes = sizesAt("/");
    for (int i = 0; i < kMostTries && before != reserveOfRoot(); ++i) {
        before = reserveOfRoot();
        sizes = sizesAt("/");
    }
    EXPECT_EQ(sizes.reservedBytes, before.bytes);
    EXPECT_EQ(sizes.blockBytes, before.unit);
}

TEST(LinuxFileSystemAttributes, OfADiskThatNobodyElseUsesAllFiguresAreThoseOfPython)
{
    if (!test::OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    const test::TempTree tree;
    test::OwnMounts mounts;
    mounts.mountMemory(tree.path(), "size=1m");
    tree.makeFile("file", 70000);
    const test::ProgramResult python = test::runProgram(
        "python3",
        {"-c",
         "import os, sys; s = os.statvfs(sys.argv[1]); "
         "print(*(n * s.f_frsize for n in (s.f_blocks, s.f_bfree, s.f_bavail)))",
         tree.path()});
    const FileSystemSizes sizes = sizesAt(tree.path());
    EXPECT_EQ(
        std::to_string(sizes.totalBytes) + ' ' + std::to_string(sizes.freeBytes) + ' '
            + std::to_string(sizes.availableBytes) + '\n',
        python.standardOutput);
    EXPECT_EQ(sizes.type, "tmpfs");
    EXPECT_EQ(sizes.reservedBytes, 0U);
}

/// A disk that nobody else uses.
class OwnDisk : public testing::TestWithParam<const char*> { };

/// Which is what the home screen shows.
TEST_P(OwnDisk, WhatIsFreeForTheUserIsWhatDfCallsAvailable)
{
    const test::MountedImage disk({GetParam()});
    if (!disk.problem().empty()) {
        GTEST_SKIP() << "no disk by " << GetParam() << " can be had here: " << disk.problem();
    }
    const std::string path = disk.path();
    const test::ProgramResult df
        = test::runProgram("df", {"-B1", "--output=size,avail", path}, {"LC_ALL=C"});
    std::istringstream lines(df.standardOutput);
    std::string header;
    std::getline(lines, header);
    std::uint64_t total = 0;
    std::uint64_t available = 0;
    ASSERT_TRUE(lines >> total >> available) << df.standardError;
    const FileSystemSizes sizes = sizesAt(path);
    EXPECT_EQ(sizes.totalBytes, total);
    EXPECT_EQ(sizes.availableBytes, available);
    EXPECT_GT(available, 0U);
    EXPECT_EQ(sizes.availableBytes + sizes.reservedBytes, sizes.freeBytes);
}

INSTANTIATE_TEST_SUITE_P(
    LinuxFileSystemAttributes,
    OwnDisk,
    testing::Values("mkfs.ext4", "mkfs.xfs", "mkfs.btrfs"),
    [](const auto& disk) { return std::string(disk.param).substr(5); });

TEST(LinuxFileSystemAttributes, TheDeviceIsThatOfTheMount)
{
    struct stat values { };
    ASSERT_EQ(::stat("/proc", &values), 0);
    EXPECT_EQ(sizesAt("/proc").device, values.st_dev);
    EXPECT_EQ(sizesAt("/proc").type, "proc");
}

TEST(LinuxFileSystemAttributes, GivesTheTotalThatStatvfsGives)
{
    struct statvfs values { };
    ASSERT_EQ(::statvfs("/", &values), 0);
    const auto sizes
        = LinuxFileSystemAttributes(questions(std::chrono::minutes(1))).attributesOfFileSystem("/");
    ASSERT_TRUE(sizes.has_value());
    EXPECT_EQ(sizes->totalBytes, std::uint64_t{values.f_blocks} * values.f_frsize);
    EXPECT_LE(sizes->freeBytes, sizes->totalBytes);
}

TEST(LinuxFileSystemAttributes, GivesNothingForAPathThatIsNotThere)
{
    EXPECT_FALSE(LinuxFileSystemAttributes(questions(std::chrono::minutes(1)))
                     .attributesOfFileSystem("/no/such/path")
                     .has_value());
}

TEST(LinuxFileSystemAttributes, AFileSystemThatDoesNotAnswerCountsAsMissing)
{
    const auto release = std::make_shared<std::promise<void>>();
    const std::shared_future<void> released = release->get_future().share();
    const LinuxFileSystemAttributes attributes(
        questions(std::chrono::milliseconds(1)), [released](const std::string&, FileSystemSizes&) {
            released.wait();
            return 0;
        });
    EXPECT_FALSE(attributes.attributesOfFileSystem("/").has_value());
    release->set_value();
}

} // namespace
} // namespace tessera
