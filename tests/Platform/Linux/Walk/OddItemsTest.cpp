// SPDX-License-Identifier: MIT
// What a walk makes of items that are no plain files and folders.
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"
#include "support/Machine/WalkTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

namespace tessera::test {
namespace {

using testing::ElementsAre;

constexpr uid_t kNobody = 65534;
constexpr int kCannotMount = 77;

bool isSuperUser()
{
    return ::geteuid() == 0;
}

/// Whoever is not bound by permissions cannot test them.
bool giveUpRights()
{
    return !isSuperUser() || (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
}

TEST(OddItems, ASymbolicLinkToAFolderIsNotFollowed)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFile("folder/file");
    tree.makeSymbolicLink("link", "folder");
    const auto items = walkTree(tree.path());
    EXPECT_FALSE(itemAt(items, "link").isDirectory);
    EXPECT_EQ(items.size(), 3U);
}

TEST(OddItems, ASymbolicLinkToItselfIsAnItem)
{
    const TempTree tree;
    tree.makeSymbolicLink("loop", "loop");
    EXPECT_THAT(sortedPaths(tree.path()), ElementsAre("loop"));
}

TEST(OddItems, ASymbolicLinkCountsItsOwnBlocks)
{
    const TempTree tree;
    tree.makeFile("file", 100000);
    tree.makeSymbolicLink("link", "file");
    EXPECT_EQ(itemAt(walkTree(tree.path()), "link").allocatedBytes, tree.allocatedBytes("link"));
}

TEST(OddItems, AFifoDoesNotStopTheWalk)
{
    const TempTree tree;
    tree.makeFifo("fifo");
    tree.makeFile("file");
    EXPECT_THAT(sortedPaths(tree.path()), ElementsAre("fifo", "file"));
}

TEST(OddItems, ASocketIsAnItemOfNoSize)
{
    const TempTree tree;
    tree.makeSocket("socket");
    EXPECT_THAT(walkTree(tree.path()), ElementsAre(WalkedItem{"socket", false, false, 0}));
}

TEST(OddItems, ADeviceIsAnItemOfNoSize)
{
    if (!isSuperUser()) {
        GTEST_SKIP() << "only the super-user can make a device";
    }
    const TempTree tree;
    tree.makeNullDevice("null");
    EXPECT_THAT(walkTree(tree.path()), ElementsAre(WalkedItem{"null", false, false, 0}));
}

TEST(OddItems, ASparseFileCountsOnlyItsBlocks)
{
    constexpr off_t kLength = off_t{1} << 30;
    const TempTree tree;
    tree.makeSparseFile("sparse", kLength);
    EXPECT_EQ(itemAt(walkTree(tree.path()), "sparse").allocatedBytes, 0U);
}

TEST(OddItems, AFileCountsItsBlocksNotItsLength)
{
    const TempTree tree;
    tree.makeFile("file", 5000);
    const std::uint64_t allocated = itemAt(walkTree(tree.path()), "file").allocatedBytes;
    EXPECT_EQ(allocated, tree.allocatedBytes("file"));
    EXPECT_GT(allocated, 5000U);
}

TEST(OddItems, AHardLinkedFileTellsItsBytesAtEachPlace)
{
    const TempTree tree;
    tree.makeFile("a", 5000);
    tree.makeFolder("b");
    tree.makeHardLink("b/c", "a");
    const auto items = walkTree(tree.path());
    EXPECT_GT(itemAt(items, "a").allocatedBytes, 0U);
    EXPECT_EQ(itemAt(items, "b/c").allocatedBytes, itemAt(items, "a").allocatedBytes);
}

TEST(OddItems, ADirectoryHasNoSizeOfItsOwn)
{
    const TempTree tree;
    tree.makeFolder("folder");
    EXPECT_THAT(walkTree(tree.path()), ElementsAre(WalkedItem{"folder", true, false, 0}));
}

TEST(OddItems, NamesAreAnyBytes)
{
    const TempTree tree;
    const std::string longest(255, 'n');
    for (const std::string& name : {longest, std::string("two\nlines"), std::string("\xFF\xFE")}) {
        tree.makeFolder(name);
        tree.makeFile(name + "/\x80");
    }
    EXPECT_THAT(
        sortedPaths(tree.path()),
        ElementsAre(
            longest,
            longest + "/\x80",
            "two\nlines",
            "two\nlines/\x80",
            "\xFF\xFE",
            "\xFF\xFE/\x80"));
}

TEST(OddItems, AnUnreadableFolderComesEmpty)
{
    const TempTree tree;
    tree.makeFolder("closed");
    tree.makeFile("closed/file");
    tree.makeFolder("open");
    tree.makeFile("open/file");
    tree.setMode("closed", 0);
    const int result = inChildProcess([&] {
        const std::vector<std::string> expected{"closed", "open", "open/file"};
        return giveUpRights() && sortedPaths(tree.path()) == expected ? 0 : 1;
    });
    EXPECT_EQ(result, 0);
}

TEST(OddItems, WhatMayBeListedButNotLookedAtHasNoSize)
{
    constexpr mode_t kReadOnly = 0444;
    const TempTree tree;
    tree.makeFolder("listable");
    tree.makeFile("listable/file", 5000);
    tree.setMode("listable", kReadOnly);
    const int result = inChildProcess([&] {
        const auto items = giveUpRights() ? walkTree(tree.path()) : std::vector<WalkedItem>();
        return items.size() == 2 && items[1] == WalkedItem{"listable/file", false, false, 0} ? 0
                                                                                             : 1;
    });
    EXPECT_EQ(result, 0);
}

TEST(OddItems, AMountedFileSystemComesAsAnEmptyFolder)
{
    const TempTree tree;
    tree.makeFolder("mount");
    tree.makeFile("mount/covered");
    const int result = inChildProcess([&] {
        if (!OwnMounts::enter()) {
            return kCannotMount;
        }
        OwnMounts mounts;
        mounts.mountMemory(tree.pathOf("mount"));
        tree.makeFile("mount/file");
        return sortedPaths(tree.path()) == std::vector<std::string>{"mount"} ? 0 : 1;
    });
    if (result == kCannotMount) {
        GTEST_SKIP() << "this process may not mount";
    }
    EXPECT_EQ(result, 0);
}

TEST(OddItems, AFolderMountedASecondTimeComesEmptyThere)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFile("folder/file");
    tree.makeFolder("again");
    const int result = inChildProcess([&] {
        if (!OwnMounts::enter()) {
            return kCannotMount;
        }
        OwnMounts mounts;
        mounts.bind(tree.pathOf("folder"), tree.pathOf("again"));
        const std::vector<std::string> expected{"again", "folder", "folder/file"};
        return sortedPaths(tree.path()) == expected ? 0 : 1;
    });
    if (result == kCannotMount) {
        GTEST_SKIP() << "this process may not mount";
    }
    EXPECT_EQ(result, 0);
}

TEST(OddItems, AWalkMayStartAtAMount)
{
    const TempTree tree;
    tree.makeFolder("mount");
    const int result = inChildProcess([&] {
        if (!OwnMounts::enter()) {
            return kCannotMount;
        }
        OwnMounts mounts;
        mounts.mountMemory(tree.pathOf("mount"));
        tree.makeFolder("mount/folder");
        tree.makeFile("mount/folder/file");
        const std::vector<std::string> expected{"folder", "folder/file"};
        return sortedPaths(tree.pathOf("mount")) == expected ? 0 : 1;
    });
    if (result == kCannotMount) {
        GTEST_SKIP() << "this process may not mount";
    }
    EXPECT_EQ(result, 0);
}

} // namespace
} // namespace tessera::test
