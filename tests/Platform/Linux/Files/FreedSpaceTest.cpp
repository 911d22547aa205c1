// SPDX-License-Identifier: MIT
// What is said to be freed, on disks of the tests' own, against what is freed when it is removed.
#include "Freeing/AskDisk.h"
#include "Freeing/FreedByDisk.h"
#include "Freeing/FreedByScan.h"
#include "Model/NodeLookup.h"
#include "Model/TopFolder.h"
#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LinuxItemStates.h"
#include "Platform/Linux/Files/LinuxSharedExtents.h"
#include "Platform/Linux/Process/LinuxOpenFiles.h"
#include "Platform/Linux/Walk/LinuxFileManager.h"
#include "Scanning/TreeBuilder.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/MountedImage.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Reason = KeptFiles::Reason;

constexpr std::chrono::minutes kLong{1};
constexpr std::size_t kLength = std::size_t{8} << 20;

/// A file system, and how far its figures are off: those that keep their records as they keep files
/// need more or less for them with every change.
struct Disk {
    const char* program;
    std::uint64_t tolerance;
};

constexpr Disk kExt4{"mkfs.ext4", 0};
constexpr Disk kXfs{"mkfs.xfs", std::uint64_t{64} << 10};
constexpr Disk kBtrfs{"mkfs.btrfs", std::uint64_t{512} << 10};

class FreedSpaceTest : public testing::TestWithParam<Disk> {
protected:
    void SetUp() override
    {
        m_disk = std::make_unique<MountedImage>(std::vector<std::string>{GetParam().program, "-q"});
        if (!m_disk->problem().empty()) {
            GTEST_SKIP() << "no disk by " << GetParam().program
                         << " can be had here: " << m_disk->problem();
        }
        std::filesystem::create_directory(pathOf("a"));
        std::filesystem::create_directory(pathOf("b"));
    }

    std::string pathOf(const std::string& name) const { return m_disk->pathOf(name); }

    FileDescriptor write(const std::string& name, std::size_t bytes, off_t offset = 0) const
    {
        FileDescriptor file(::open(pathOf(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644));
        const std::string content(bytes, 'x');
        EXPECT_EQ(
            ::pwrite(file.number(), content.data(), bytes, offset), static_cast<ssize_t>(bytes));
        return file;
    }

    void link(const std::string& existing, const std::string& name) const
    {
        std::filesystem::create_hard_link(pathOf(existing), pathOf(name));
    }

    void clone(const std::string& existing, const std::string& name) const
    {
        const FileDescriptor original(::open(pathOf(existing).c_str(), O_RDONLY | O_CLOEXEC));
        const FileDescriptor copy = write(name, 0);
        ASSERT_EQ(::ioctl(copy.number(), FICLONE, original.number()), 0);
    }

    void writeAllOut() const
    {
        const FileDescriptor disk(::open(m_disk->path().c_str(), O_RDONLY | O_CLOEXEC));
        EXPECT_EQ(::syncfs(disk.number()), 0);
    }

    /// The tree of a folder, with the folders' own blocks.
    void scan(const std::string& folder = {})
    {
        writeAllOut();
        const std::string path = folder.empty() ? m_disk->path() : pathOf(folder);
        auto root = makeNode<TopFolder>(lastPathComponent(path));
        root->setOrigin(path);
        TreeBuilder builder(std::move(root));
        const auto walk
            = LinuxFileManager().enumerator(path, ItemKeys::SizeAndHidden, LinksToStart::Follow);
        DirectoryItem item;
        while (walk->next(item)) {
            builder.add(item);
        }
        builder.closeAll();
        m_top = builder.takeRoot();
        for (const auto& found : std::filesystem::recursive_directory_iterator(path)) {
            if (found.is_directory()) {
                nodeCast<Folder>(nodeAtPath(*m_top, found.path().string()))
                    ->setOwnAllocation(blocksOf(found.path()));
            }
        }
    }

    static std::uint64_t blocksOf(const std::string& path)
    {
        return statusAt(AT_FDCWD, path.c_str()).status.allocatedBytes;
    }

    FreedByScan byScan(const std::vector<std::string>& names) const
    {
        std::vector<const File*> items;
        items.reserve(names.size());
        for (const std::string& name : names) {
            items.push_back(nodeAtPath(*m_top, pathOf(name)));
        }
        return FreedByScan(items);
    }

    FreedSpace freed(const std::vector<std::string>& names) const
    {
        const FreeingQuestion question = byScan(names).questionAbout(10'000);
        const FreeingServices services{
            std::make_shared<LinuxItemStates>(kLong),
            std::make_shared<LinuxSharedExtents>(LinuxSharedExtents::Limits{10'000, kLong}),
            std::make_shared<LinuxOpenFiles>(kLong),
            ::getpid()};
        return freedByDisk(question, askDisk(question, services, kLong, {}));
    }

    std::uint64_t freeBytes() const
    {
        writeAllOut();
        struct statvfs values { };
        EXPECT_EQ(::statvfs(m_disk->path().c_str(), &values), 0);
        return std::uint64_t{values.f_bfree} * values.f_frsize;
    }

    /// Removes the items, and expects so much to become free. Some file systems take their time.
    void expectFreed(const std::vector<std::string>& names, std::uint64_t bytes) const
    {
        const std::uint64_t before = freeBytes();
        for (const std::string& name : names) {
            std::filesystem::remove_all(pathOf(name));
        }
        expectMore(before, bytes);
    }

    void expectMore(std::uint64_t before, std::uint64_t bytes) const
    {
        constexpr int kMostLooks = 5000;
        const auto isSo = [&] {
            const auto off = static_cast<std::int64_t>(freeBytes() - before - bytes);
            return static_cast<std::uint64_t>(std::abs(off)) <= GetParam().tolerance;
        };
        int looks = 0;
        while (!isSo() && ++looks < kMostLooks) {
            std::this_thread::yield();
        }
        EXPECT_LT(looks, kMostLooks) << freeBytes() - before << " instead of " << bytes;
    }

    void expectExactly(const std::vector<std::string>& names) const
    {
        const FreedSpace space = freed(names);
        EXPECT_EQ(space.least, space.most);
        EXPECT_THAT(space.kept, IsEmpty());
        EXPECT_EQ(byScan(names).space().most, space.most) << "by the scan";
        expectFreed(names, space.most);
    }

    std::unique_ptr<MountedImage> m_disk;
    std::unique_ptr<TopFolder> m_top;
};

std::string nameOf(const testing::TestParamInfo<Disk>& tested)
{
    return std::string(tested.param.program).substr(5);
}

INSTANTIATE_TEST_SUITE_P(Disks, FreedSpaceTest, testing::Values(kExt4, kXfs, kBtrfs), nameOf);

TEST_P(FreedSpaceTest, FilesAndFoldersFreeWhatTheyTake)
{
    std::filesystem::create_directory(pathOf("a/c"));
    (void)write("a/file", kLength);
    (void)write("a/c/other", 3 * kLength / 2);
    (void)write("b/file", kLength);
    scan();
    EXPECT_GE(freed({"a"}).least, kLength * 5 / 2);
    expectExactly({"a"});
}

TEST_P(FreedSpaceTest, OfASparseFileOnlyWhatIsWrittenIsFreed)
{
    (void)write("a/sparse", kLength, off_t{1} << 30);
    scan();
    EXPECT_LT(freed({"a"}).most, 2 * kLength);
    expectExactly({"a"});
}

TEST_P(FreedSpaceTest, AFileIsFreedOnceWithAllItsNames)
{
    (void)write("a/file", kLength);
    link("a/file", "a/second");
    link("a/file", "b/third");
    scan();
    EXPECT_LT(freed({"a", "b/third"}).most, 2 * kLength);
    expectExactly({"a", "b/third"});
}

TEST_P(FreedSpaceTest, AFileWithANameElsewhereFreesNothing)
{
    (void)write("a/file", kLength);
    link("a/file", "b/other");
    scan();
    for (const char* const folder : {"a", "b"}) {
        EXPECT_EQ(freed({folder}).most, blocksOf(pathOf(folder)));
    }
    EXPECT_THAT(
        freed({"a"}).kept, ElementsAre(KeptFiles{Reason::LinksElsewhere, 1, pathOf("a/file"), {}}));
    expectFreed({"a"}, freed({"a"}).least);
}

TEST_P(FreedSpaceTest, AFileWithANameOutsideTheScanMayFreeNothing)
{
    std::filesystem::create_directory(pathOf("a/c"));
    (void)write("a/c/file", kLength);
    link("a/c/file", "b/other");
    scan("a");
    const FreedSpace space = freed({"a/c"});
    EXPECT_EQ(space.most - space.least, kLength);
    EXPECT_THAT(
        space.kept, ElementsAre(KeptFiles{Reason::LinksOutsideScan, 1, pathOf("a/c/file"), {}}));
    expectFreed({"a/c"}, space.least);
}

TEST_P(FreedSpaceTest, ANameThatWasMadeSinceTheScanKeepsTheFile)
{
    (void)write("a/file", kLength);
    scan();
    link("a/file", "b/new");
    const FreedSpace space = freed({"a"});
    EXPECT_EQ(space.least, blocksOf(pathOf("a")));
    expectFreed({"a"}, space.least);
}

TEST_P(FreedSpaceTest, AFileThatIsOpenIsFreedWhenItIsClosed)
{
    (void)write("a/file", kLength);
    scan();
    FileDescriptor open(::open(pathOf("a/file").c_str(), O_RDONLY)); // the child gets it
    auto child = std::make_unique<ChildProcess>(
        ChildProcessSetup{"sleep", {"600"}, {}, "/dev/null", "/dev/null"});
    open = FileDescriptor();
    const FreedSpace space = freed({"a/file"});
    EXPECT_EQ(space.least, 0U);
    EXPECT_EQ(space.most, kLength);
    ASSERT_EQ(space.kept.size(), 1U);
    EXPECT_EQ(space.kept[0].reason, Reason::HeldOpen);
    EXPECT_EQ(space.kept[0].largest, pathOf("a/file"));
    ASSERT_EQ(space.kept[0].holders.size(), 1U);
    EXPECT_EQ(space.kept[0].holders[0].process, child->id());
    const std::uint64_t before = freeBytes();
    expectFreed({"a/file"}, space.least);
    child.reset();
    expectMore(before, space.most);
}

class FreedSharedSpaceTest : public FreedSpaceTest {
protected:
    void expectShared(const FreedSpace& space, const std::string& largest, std::size_t count) const
    {
        EXPECT_THAT(
            space.kept, ElementsAre(KeptFiles{Reason::SharedExtents, count, pathOf(largest), {}}));
    }
};

INSTANTIATE_TEST_SUITE_P(Disks, FreedSharedSpaceTest, testing::Values(kXfs, kBtrfs), nameOf);

TEST_P(FreedSharedSpaceTest, OneOfTwoThatShareAllFreesNothing)
{
    (void)write("a/original", kLength);
    clone("a/original", "b/copy");
    scan();
    const FreedSpace space = freed({"b/copy"});
    EXPECT_EQ(space.least, 0U);
    EXPECT_EQ(space.most, kLength);
    expectShared(space, "b/copy", 1);
    expectFreed({"b/copy"}, space.least);
}

TEST_P(FreedSharedSpaceTest, BothOfTwoThatShareAllFreeItOnce)
{
    (void)write("a/original", kLength);
    clone("a/original", "a/copy");
    scan();
    const FreedSpace space = freed({"a"});
    EXPECT_EQ(space.least, blocksOf(pathOf("a")));
    EXPECT_EQ(space.most, 2 * kLength + blocksOf(pathOf("a")));
    expectFreed({"a"}, kLength + blocksOf(pathOf("a")));
}

TEST_P(FreedSharedSpaceTest, WhatWasChangedInACopyIsFreed)
{
    (void)write("a/original", kLength);
    clone("a/original", "b/copy");
    writeAllOut();
    (void)write("b/copy", kLength / 4);
    scan();
    const FreedSpace space = freed({"b/copy"});
    EXPECT_EQ(space.least, kLength / 4);
    expectShared(space, "b/copy", 1);
    expectFreed({"b/copy"}, space.least);
}

class FreedLinksTest : public FreedSpaceTest { };

INSTANTIATE_TEST_SUITE_P(Disks, FreedLinksTest, testing::Values(kExt4), nameOf);

/// Two thousand files of fifty names each, half of which have one that stays.
TEST_P(FreedLinksTest, AHundredThousandLinksAreToldApart)
{
    constexpr int kFiles = 2000;
    constexpr int kNames = 50;
    for (int i = 0; i < kFiles; ++i) {
        const std::string file = "a/" + std::to_string(i);
        (void)write(file, 5000);
        for (int j = 1; j < kNames - 1; ++j) {
            link(file, file + '-' + std::to_string(j));
        }
        link(file, (i % 2 == 0 ? "a/last" : "b/last") + std::to_string(i));
    }
    scan();
    const FreedSpace space = freed({"a"});
    EXPECT_EQ(space.least, space.most);
    EXPECT_EQ(space.least, kFiles / 2 * blocksOf(pathOf("a/0")) + blocksOf(pathOf("a")));
    ASSERT_EQ(space.kept.size(), 1U);
    EXPECT_EQ(space.kept[0].reason, Reason::LinksElsewhere);
    EXPECT_EQ(space.kept[0].count, std::size_t{kFiles / 2});
    EXPECT_EQ(m_top->linkedNames().size(), std::size_t{kFiles} * kNames);
    expectFreed({"a"}, space.least);
}

class FreedCompressedSpaceTest : public FreedSpaceTest { };

INSTANTIATE_TEST_SUITE_P(Disks, FreedCompressedSpaceTest, testing::Values(kBtrfs), nameOf);

TEST_P(FreedCompressedSpaceTest, NothingIsPromisedOfWhatIsCompressed)
{
    (void)write("a/file", 0);
    ASSERT_EQ(
        MountedImage::run("btrfs", {"property", "set", pathOf("a/file"), "compression", "zlib"})
            .exitStatus,
        0);
    (void)write("a/file", kLength);
    scan();
    const FreedSpace space = freed({"a/file"});
    EXPECT_EQ(space.least, 0U);
    EXPECT_EQ(space.most, kLength);
    EXPECT_THAT(space.kept, ElementsAre(KeptFiles{Reason::Compressed, 1, pathOf("a/file"), {}}));
    expectFreed({"a/file"}, 0); // it is of one letter
}

} // namespace
} // namespace tessera::test
