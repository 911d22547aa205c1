// SPDX-License-Identifier: MIT
// What a scan tells of folders that it could not list, or not to their end.
#include "Platform/Linux/Files/FileStatus.h"
#include "support/Machine/FailingCalls.h"
#include "support/Machine/InChild.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/ScanTree.h"
#include "support/Machine/TempTree.h"
#include "support/MakeTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <set>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr int kCannotMount = 77;
constexpr mode_t kOnlyListable = 0444;

UnreadableFolder unreadable(const std::string& path, int error)
{
    return {path, std::error_code(error, std::system_category())};
}

std::vector<UnreadableFolder> unreadableIn(const std::string& path)
{
    return scanTree(path)->findings().unreadable();
}

/// Runs the expectations of `work` as a plain user.
void expectAsPlainUser(const std::function<void()>& work)
{
    EXPECT_EQ(
        asPlainUser([&work] {
            work();
            return testing::Test::HasFailure() ? 1 : 0;
        }),
        0);
}

TEST(UnreadableFolders, AreNoneInAReadableTree)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFile("folder/file", 1);
    EXPECT_EQ(scanTree(tree.path())->findings().unreadableCount(), 0U);
}

TEST(UnreadableFolders, AreToldWithPathAndReasonInTheOrderOfTheWalk)
{
    const TempTree tree;
    for (const std::string name : {"a", "b", "b/in", "c"}) {
        tree.makeFolder(name);
    }
    tree.setMode("a", 0);
    tree.setMode("b/in", 0);
    tree.setMode("c", 0);
    expectAsPlainUser([&tree] {
        std::vector<UnreadableFolder> inOrder;
        for (const WalkedItem& item : walkTree(tree.path())) {
            if (item.path != "b") {
                inOrder.push_back(unreadable(tree.pathOf(item.path), EACCES));
            }
        }
        EXPECT_EQ(inOrder.size(), 3U);
        EXPECT_EQ(unreadableIn(tree.path()), inOrder);
    });
}

TEST(UnreadableFolders, KnowTheirNodes)
{
    const TempTree tree;
    tree.makeFolder("closed");
    tree.setMode("closed", 0);
    expectAsPlainUser([&tree] {
        const auto root = scanTree(tree.path());
        EXPECT_EQ(root->findings().unreadable().at(0).node, &at(*root, "closed"));
    });
}

/// A folder may be opened that cannot be searched, but nothing that is in it.
TEST(UnreadableFolders, AreThoseInAFolderThatMayBeListedAlone)
{
    const TempTree tree;
    tree.makeFolder("listable");
    tree.makeFolder("listable/in");
    tree.setMode("listable", kOnlyListable);
    expectAsPlainUser([&tree] {
        EXPECT_THAT(
            unreadableIn(tree.path()), ElementsAre(unreadable(tree.pathOf("listable/in"), EACCES)));
    });
}

/// What its files take is not known.
TEST(UnreadableFolders, AreThoseWhoseFilesCannotBeLookedAt)
{
    const TempTree tree;
    tree.makeFolder("listable");
    tree.makeFile("listable/file", 1);
    tree.setMode("listable", kOnlyListable);
    expectAsPlainUser([&tree] {
        const auto root = scanTree(tree.path());
        EXPECT_THAT(
            root->findings().unreadable(),
            ElementsAre(unreadable(tree.pathOf("listable"), EACCES)));
        EXPECT_EQ(at(*root, "listable/file").totalAllocation(), 0U);
    });
}

/// Several threads look at what is in a crowded folder, each at a part of it.
TEST(UnreadableFolders, ACrowdedOneIsToldOnce)
{
    constexpr int kFiles = 2000;
    const TempTree tree(TempTree::fastParent());
    tree.makeFolder("listable");
    for (int i = 0; i < kFiles; ++i) {
        tree.makeFile("listable/" + std::to_string(i));
    }
    tree.setMode("listable", kOnlyListable);
    expectAsPlainUser([&tree] {
        const auto root = scanTree(tree.path());
        EXPECT_THAT(
            root->findings().unreadable(),
            ElementsAre(unreadable(tree.pathOf("listable"), EACCES)));
        EXPECT_EQ(root->findings().unreadableCount(), 1U);
    });
}

TEST(UnreadableFolders, TheRootMayBeOne)
{
    const TempTree tree;
    tree.makeFolder("closed");
    tree.setMode("closed", 0);
    expectAsPlainUser([&tree] {
        const auto root = scanTree(tree.pathOf("closed"));
        EXPECT_THAT(
            root->findings().unreadable(), ElementsAre(unreadable(tree.pathOf("closed"), EACCES)));
        EXPECT_EQ(root->findings().unreadable().at(0).node, root.get());
    });
}

TEST(UnreadableFolders, ARootThatIsNotThereIsNone)
{
    const TempTree tree;
    tree.makeFile("file", 1);
    tree.makeSymbolicLink("loop", "loop");
    EXPECT_THAT(unreadableIn(tree.pathOf("nothing")), IsEmpty());
    EXPECT_THAT(unreadableIn(tree.pathOf("file")), IsEmpty());
    EXPECT_THAT(unreadableIn(tree.pathOf("loop")), IsEmpty());
}

TEST(UnreadableFolders, AMountIsNone)
{
    const TempTree tree;
    tree.makeFolder("mount");
    const int result = inChild([&] {
        if (!OwnMounts::enter()) {
            return kCannotMount;
        }
        OwnMounts mounts;
        mounts.mountMemory(tree.pathOf("mount"), "mode=0000");
        EXPECT_THAT(unreadableIn(tree.path()), IsEmpty());
        return testing::Test::HasFailure() ? 1 : 0;
    });
    if (result == kCannotMount) {
        GTEST_SKIP() << "this process may not mount";
    }
    EXPECT_EQ(result, 0);
}

/// A walk over "mount", which nobody may read, and over "closed", where the calls fail.
class UnreadableFoldersBesideAMount : public testing::Test {
protected:
    UnreadableFoldersBesideAMount()
    {
        m_tree.makeFolder("mount");
        m_tree.makeFolder("closed");
        m_tree.setMode("closed", 0);
    }

    void expectThatClosedAloneIsToldWhere(const std::vector<FailingCall>& calls)
    {
        const int result = inChild([&] {
            if (!OwnMounts::enter()) {
                return kCannotMount;
            }
            OwnMounts mounts;
            mounts.mountMemory(m_tree.pathOf("mount"), "mode=0000");
            if (!std::ranges::all_of(calls, makeCallFail) || !becomePlainUser()) {
                return kCannotMount;
            }
            expectThatClosedAloneIsTold();
            return testing::Test::HasFailure() ? 1 : 0;
        });
        if (result == kCannotMount) {
            GTEST_SKIP() << "this process may not mount";
        }
        EXPECT_EQ(result, 0);
    }

private:
    void expectThatClosedAloneIsTold() const
    {
        const auto root = scanTree(m_tree.path());
        EXPECT_THAT(
            root->findings().unreadable(),
            ElementsAre(unreadable(m_tree.pathOf("closed"), EACCES)));
        EXPECT_EQ(static_cast<Folder&>(at(*root, "mount")).ownAllocation(), 0U);
    }

    TempTree m_tree;
};

/// Without the call that stays on a mount by itself, it is the status that tells.
TEST_F(UnreadableFoldersBesideAMount, AreToldAloneOnOldKernels)
{
    expectThatClosedAloneIsToldWhere({{SYS_openat2, ENOSYS, std::nullopt}});
}

/// Where something may get mounted on the way, each folder's status is asked before it is opened.
TEST_F(UnreadableFoldersBesideAMount, AreToldAloneWhereAutomountsMayBe)
{
    expectThatClosedAloneIsToldWhere({{SYS_fstatfs, EPERM, std::nullopt}});
}

/// As of what another user has mounted for themselves, or whose server is gone.
TEST_F(UnreadableFoldersBesideAMount, AreToldAloneWhereTheMountGivesNoStatus)
{
    constexpr std::uint32_t kByName = AT_NO_AUTOMOUNT | AT_SYMLINK_NOFOLLOW;
    const FailingCall statusFails{SYS_statx, EACCES, kByName};
    expectThatClosedAloneIsToldWhere({statusFails, {SYS_fstatfs, EPERM, std::nullopt}});
    expectThatClosedAloneIsToldWhere({statusFails, {SYS_openat2, ENOSYS, std::nullopt}});
}

/// A scan during which something happens when "a" is known and not yet entered.
class ChangingFolder : public testing::Test {
protected:
    ChangingFolder()
    {
        m_tree.makeFolder("walked");
        m_tree.makeFolder("walked/a");
    }

    std::unique_ptr<TopFolder> scanChanging(const std::function<void()>& change)
    {
        return scanTree(m_tree.pathOf("walked"), kOnDemand, [&](const DirectoryItem& item) {
            if (item.name == "a") {
                change();
            }
        });
    }

    /// Neither unreadable nor of any size.
    static void expectGone(TopFolder& root)
    {
        EXPECT_EQ(root.findings().unreadableCount(), 0U);
        EXPECT_EQ(static_cast<Folder&>(at(root, "a")).ownAllocation(), 0U);
    }

    const TempTree& tree() const { return m_tree; }

private:
    TempTree m_tree;
};

TEST_F(ChangingFolder, OneThatIsRemovedIsGone)
{
    expectGone(*scanChanging([this] { tree().removeFolder("walked/a"); }));
}

TEST_F(ChangingFolder, OneThatTurnsIntoAFileIsGone)
{
    expectGone(*scanChanging([this] {
        tree().removeFolder("walked/a");
        tree().makeFile("walked/a", 1);
    }));
}

TEST_F(ChangingFolder, OneThatTurnsIntoALinkIsGone)
{
    expectGone(*scanChanging([this] {
        tree().removeFolder("walked/a");
        tree().makeSymbolicLink("walked/a", "..");
    }));
}

/// Of a deep tree not all folders stay open; those above are opened anew for what is left in them.
TEST(UnreadableFolders, AreNotThoseThatWereMovedAwayWithWhatIsAboveThem)
{
    constexpr std::size_t kDepth = 600;
    const TempTree tree;
    tree.makeFolder("walked");
    tree.makeFolder("walked/top");
    const TempTree chain(tree.pathOf("walked/top"));
    chain.makeChain(kDepth, "sibling");
    std::size_t folders = 0;
    const auto root = scanTree(tree.pathOf("walked"), kOnDemand, [&](const DirectoryItem&) {
        if (++folders == kDepth) {
            tree.rename("walked/top", "moved");
        }
    });
    EXPECT_EQ(root->findings().unreadableCount(), 0U);
    tree.rename("moved", "walked/top");
}

TEST_F(ChangingFolder, OneThatIsClosedIsUnreadable)
{
    expectAsPlainUser([] {
        const TempTree own;
        own.makeFolder("a");
        const auto root
            = scanTree(own.path(), kOnDemand, [&](const DirectoryItem&) { own.setMode("a", 0); });
        EXPECT_THAT(
            root->findings().unreadable(), ElementsAre(unreadable(own.pathOf("a"), EACCES)));
    });
}

/// Each call of a walk fails once: whatever could not be listed is told, and nothing else is.
TEST(UnreadableFolders, AreToldWhicheverCallFails)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    std::set<std::string> told;
    int place = 0;
    for (bool hasFailed = true; hasFailed;) {
        std::unique_ptr<TopFolder> root;
        const auto result
            = withOneCallFailing(++place, EIO, [&] { root = scanTree(tree.path(), kOnDemand); });
        if (!result) {
            GTEST_SKIP() << "this kernel filters no system calls";
        }
        hasFailed = *result;
        const ScanFindings& findings = root->findings();
        EXPECT_LE(findings.unreadableCount(), hasFailed ? 1U : 0U) << place;
        for (const UnreadableFolder& folder : findings.unreadable()) {
            EXPECT_EQ(folder.reason, std::error_code(EIO, std::system_category()));
            told.insert(folder.path);
        }
        const bool isWhole = root->children().size() == 1
            && static_cast<Folder&>(*root->children()[0]).children().size() == 1;
        EXPECT_TRUE(isWhole || findings.unreadableCount() == 1) << place;
    }
    EXPECT_THAT(told, UnorderedElementsAre(tree.path(), tree.pathOf("a"), tree.pathOf("a/b")));
}

/// A folder that was listed and gives no status is not known again when it has to be opened anew:
/// all that is in it would be missing without a word.
TEST(UnreadableFolders, AreThoseWhoseOwnStatusIsMissing)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    const auto ownBytes = [](TopFolder& root) {
        return std::array{
            root.ownAllocation(),
            static_cast<Folder&>(at(root, "a")).ownAllocation(),
            static_cast<Folder&>(at(root, "a/b")).ownAllocation()};
    };
    const auto expected = ownBytes(*scanTree(tree.path(), kOnDemand));
    int place = 0;
    for (bool hasFailed = true; hasFailed;) {
        std::unique_ptr<TopFolder> root;
        const auto result
            = withOneCallFailing(++place, EIO, [&] { root = scanTree(tree.path(), kOnDemand); });
        if (!result) {
            GTEST_SKIP() << "this kernel filters no system calls";
        }
        hasFailed = *result;
        if (root->findings().unreadableCount() == 0) {
            EXPECT_EQ(ownBytes(*root), expected) << place;
        }
    }
}

/// A folder that is removed while it is open lists nothing any more, and has no place.
TEST(UnreadableFolders, AreNotThoseThatAreGoneWhicheverCallSaysSo)
{
    const TempTree tree;
    tree.makeFolder("a");
    int place = 0;
    for (bool hasFailed = true; hasFailed;) {
        std::unique_ptr<TopFolder> root;
        const auto result
            = withOneCallFailing(++place, ENOENT, [&] { root = scanTree(tree.path(), kOnDemand); });
        if (!result) {
            GTEST_SKIP() << "this kernel filters no system calls";
        }
        hasFailed = *result;
        EXPECT_EQ(root->findings().unreadableCount(), 0U) << place;
        const bool isListed = !root->children().empty();
        EXPECT_TRUE(isListed || root->ownAllocation() == 0) << place;
    }
}

/// The walk is without keys, so that the folder's own calls alone are among those that may fail.
void expectWhatItHadWhenItBreaksOffFor(int error)
{
    constexpr int kFiles = 3000; // more than one buffer holds
    const TempTree tree(TempTree::fastParent());
    for (int i = 0; i < kFiles; ++i) {
        tree.makeFile(std::to_string(i) + std::string(50, 'n'));
    }
    bool wasBrokenOff = false;
    int place = 0;
    for (bool hasFailed = true; hasFailed;) {
        int items = 0;
        std::error_code problem;
        const auto result = withOneCallFailing(++place, error, [&] {
            const auto walk = LinuxFileManager(kOnDemand).enumerator(
                tree.path(), ItemKeys::None, LinksToStart::Follow);
            for (DirectoryItem item; walk->next(item); ++items) {
                problem = walk->entered() != nullptr ? walk->entered()->problem : problem;
            }
        });
        if (!result) {
            GTEST_SKIP() << "this kernel filters no system calls";
        }
        hasFailed = *result;
        if (items > 0 && items < kFiles) {
            wasBrokenOff = true;
            EXPECT_EQ(problem, std::error_code(error, std::system_category()));
        }
    }
    EXPECT_TRUE(wasBrokenOff);
}

TEST(UnreadableFolders, AListingThatBreaksOffKeepsWhatItHad)
{
    expectWhatItHadWhenItBreaksOffFor(EIO);
}

/// It does not go away while it is open: a server that repeats itself ends a listing with this.
TEST(UnreadableFolders, AListingThatRunsInCirclesKeepsWhatItHad)
{
    expectWhatItHadWhenItBreaksOffFor(ELOOP);
}

} // namespace
} // namespace tessera::test
