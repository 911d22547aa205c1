// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/LinuxDirectoryEnumerator.h"

#include "support/Machine/TempTree.h"
#include "support/Machine/WalkTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <filesystem>
#include <random>
#include <set>
#include <thread>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// None, one, few that may hardly read ahead, and all that are used otherwise.
constexpr std::array kHelpers{
    kOnDemand, ReadAheadOptions{1, 65536}, ReadAheadOptions{3, 10}, ReadAheadOptions{}};

class LinuxDirectoryEnumeratorWith : public testing::TestWithParam<ReadAheadOptions> { };

INSTANTIATE_TEST_SUITE_P(
    Helpers, LinuxDirectoryEnumeratorWith, testing::ValuesIn(kHelpers), [](const auto& options) {
        return std::to_string(options.param.helpers) + "helpers";
    });

/// Folders, files, hard and symbolic links in random places.
void makeRandomTree(const TempTree& tree, unsigned seed)
{
    constexpr std::size_t kItems = 600;
    constexpr std::size_t kMaxBytes = 20000;
    std::mt19937 random(seed);
    std::vector<std::string> folders{""};
    std::string lastFile;
    for (std::size_t i = 0; i < kItems; ++i) {
        const std::string name = folders[random() % folders.size()] + "n" + std::to_string(i);
        switch (random() % 8) {
        case 0:
        case 1:
            tree.makeFolder(name);
            folders.push_back(name + '/');
            break;
        case 2:
            tree.makeSymbolicLink(name, "..");
            break;
        case 3:
            if (!lastFile.empty()) {
                tree.makeHardLink(name, lastFile);
                break;
            }
            [[fallthrough]];
        default:
            tree.makeFile(name, random() % kMaxBytes);
            lastFile = name;
        }
    }
}

std::vector<WalkedItem> itemsByFilesystem(const TempTree& tree)
{
    std::vector<WalkedItem> items;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(tree.path())) {
        const std::string path = entry.path().lexically_relative(tree.path()).string();
        const bool isDirectory = entry.is_directory() && !entry.is_symlink();
        items.push_back({path, isDirectory, false, isDirectory ? 0 : tree.allocatedBytes(path)});
    }
    std::sort(items.begin(), items.end());
    return items;
}

TEST_P(LinuxDirectoryEnumeratorWith, FindsWhatTheStandardLibraryFinds)
{
    for (const unsigned seed : {1U, 2U, 3U}) {
        const TempTree tree(TempTree::fastParent());
        makeRandomTree(tree, seed);
        std::vector<WalkedItem> items = walkTree(tree.path(), GetParam());
        std::sort(items.begin(), items.end());
        EXPECT_EQ(items, itemsByFilesystem(tree)) << "seed " << seed;
    }
}

TEST_P(LinuxDirectoryEnumeratorWith, DeliversADirectoryRightBeforeWhatItHolds)
{
    const TempTree tree(TempTree::fastParent());
    makeRandomTree(tree, 4);
    std::set<std::string> closed;
    std::string current;
    for (const WalkedItem& item : walkTree(tree.path(), GetParam())) {
        const std::string parent = std::filesystem::path(item.path).parent_path().string();
        while (current != parent) {
            closed.insert(current);
            ASSERT_FALSE(current.empty()) << item << " is not below the last directory";
            current = std::filesystem::path(current).parent_path().string();
        }
        EXPECT_FALSE(closed.contains(parent)) << item;
        if (item.isDirectory) {
            current = item.path;
        }
    }
}

TEST_P(LinuxDirectoryEnumeratorWith, DeliversTheSameOrderEveryTime)
{
    const TempTree tree(TempTree::fastParent());
    makeRandomTree(tree, 5);
    EXPECT_EQ(walkTree(tree.path(), GetParam()), walkTree(tree.path(), kOnDemand));
}

TEST_P(LinuxDirectoryEnumeratorWith, ComesBackUpADeepChainWithASiblingBesideEachFolder)
{
    constexpr std::size_t kDepth = 5000;
    const TempTree tree(TempTree::fastParent());
    tree.makeChain(kDepth, "sibling");
    const int result = inChildProcess([&] {
        const rlimit limit{256, 256};
        ::setrlimit(RLIMIT_NOFILE, &limit);
        return countItems(tree.path(), GetParam()) == 2 * kDepth ? 0 : 1;
    });
    EXPECT_EQ(result, 0);
}

TEST_P(LinuxDirectoryEnumeratorWith, LeavesOutWhatIsBelowASkippedDirectory)
{
    const TempTree tree;
    for (const std::string folder : {"a", "a/b", "a/b/c", "d"}) {
        tree.makeFolder(folder);
        tree.makeFile(folder + "/file");
    }
    const auto skipB = [](const WalkedItem& item, DirectoryEnumerator& enumerator) {
        if (item.path == "a/b") {
            enumerator.skipDescendants();
        }
    };
    EXPECT_THAT(
        sortedPaths(tree.path(), GetParam(), skipB),
        ElementsAre("a", "a/b", "a/file", "d", "d/file"));
}

TEST_P(LinuxDirectoryEnumeratorWith, FoldersAroundASkippedOneMayEndWhileItIsStillBeingRead)
{
    const TempTree tree(TempTree::fastParent());
    for (const std::string folder : {"a", "a/b", "a/b/c", "a/b/c/d", "e"}) {
        tree.makeFolder(folder);
    }
    const auto skipB = [](const WalkedItem& item, DirectoryEnumerator& enumerator) {
        if (item.path == "a/b") {
            enumerator.skipDescendants();
        }
    };
    // A helper has to be in there at the right moment.
    constexpr int kWalks = 300;
    for (int walk = 0; walk < kWalks; ++walk) {
        ASSERT_EQ(sortedPaths(tree.path(), GetParam(), skipB).size(), 3U);
    }
}

TEST_P(LinuxDirectoryEnumeratorWith, SkippingEveryDirectoryLeavesTheFirstLevel)
{
    const TempTree tree(TempTree::fastParent());
    makeRandomTree(tree, 6);
    const auto skipAll
        = [](const WalkedItem&, DirectoryEnumerator& enumerator) { enumerator.skipDescendants(); };
    const auto items = walkTree(tree.path(), GetParam(), skipAll);
    const auto isDeep
        = [](const WalkedItem& item) { return item.path.find('/') != std::string::npos; };
    EXPECT_FALSE(items.empty());
    EXPECT_TRUE(std::none_of(items.begin(), items.end(), isDeep));
}

TEST_P(LinuxDirectoryEnumeratorWith, CanBeDroppedInMidWalk)
{
    const TempTree tree(TempTree::fastParent());
    makeRandomTree(tree, 7);
    const auto enumerator
        = LinuxFileManager(GetParam())
              .enumerator(tree.path(), ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(enumerator->next(item));
    }
}

// Trees that take long to make are made once for all.

TEST(LinuxDirectoryEnumerator, WalksAFolderOfTwoHundredThousandEntriesWithAnyHelpers)
{
    constexpr std::size_t kEntries = 200000;
    const TempTree tree(TempTree::fastParent());
    tree.makeFolder("large");
    for (std::size_t i = 0; i < kEntries; ++i) {
        tree.makeFile("large/" + std::to_string(i));
    }
    for (const ReadAheadOptions& options : kHelpers) {
        EXPECT_EQ(countItems(tree.path(), options), kEntries + 1) << options.helpers << " helpers";
    }
}

TEST(LinuxDirectoryEnumerator, WalksAChainOfAHundredThousandFoldersWithFewDescriptorsAndAnyHelpers)
{
    constexpr std::size_t kDepth = 100000;
    const TempTree tree(TempTree::fastParent());
    tree.makeChain(kDepth);
    for (const ReadAheadOptions& options : kHelpers) {
        const int result = inChildProcess([&] {
            const rlimit limit{256, 256};
            ::setrlimit(RLIMIT_NOFILE, &limit);
            return countItems(tree.path(), options) == kDepth ? 0 : 1;
        });
        EXPECT_EQ(result, 0) << options.helpers << " helpers";
    }
}

TEST(LinuxDirectoryEnumerator, StaysAtTheEnd)
{
    const TempTree tree;
    const auto enumerator
        = LinuxFileManager().enumerator(tree.path(), ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    EXPECT_FALSE(enumerator->next(item));
    EXPECT_FALSE(enumerator->next(item));
}

TEST(LinuxDirectoryEnumerator, SkippingAfterAFileSkipsNothing)
{
    const TempTree tree;
    tree.makeFile("a");
    tree.makeFolder("b");
    tree.makeFile("b/c");
    const auto skipFiles = [](const WalkedItem& item, DirectoryEnumerator& enumerator) {
        if (!item.isDirectory) {
            enumerator.skipDescendants();
        }
    };
    EXPECT_THAT(sortedPaths(tree.path(), {}, skipFiles), ElementsAre("a", "b", "b/c"));
}

TEST(LinuxDirectoryEnumerator, APathThatIsNotThereYieldsNothing)
{
    EXPECT_THAT(walkTree("/no/such/path"), IsEmpty());
}

TEST(LinuxDirectoryEnumerator, APathOfAFileYieldsNothing)
{
    const TempTree tree;
    tree.makeFile("file");
    EXPECT_THAT(walkTree(tree.pathOf("file")), IsEmpty());
}

TEST(LinuxDirectoryEnumerator, ASymbolicLinkThatSomebodyChoseIsFollowed)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFile("folder/file");
    tree.makeSymbolicLink("link", "folder");
    EXPECT_THAT(sortedPaths(tree.pathOf("link")), ElementsAre("file"));
}

TEST(LinuxDirectoryEnumerator, LinksOnTheWayToTheStartCanBeRefused)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFolder("folder/sub");
    tree.makeFile("folder/sub/file");
    tree.makeSymbolicLink("link", "folder");
    const LinuxFileManager files;
    const auto isWalked = [&](const std::string& name) {
        DirectoryItem item;
        return files.enumerator(tree.pathOf(name), ItemKeys::None, LinksToStart::Refuse)
            ->next(item);
    };
    EXPECT_TRUE(isWalked("folder"));
    EXPECT_FALSE(isWalked("link"));
    EXPECT_TRUE(isWalked("folder/sub"));
    EXPECT_FALSE(isWalked("link/sub"));
}

TEST(LinuxDirectoryEnumerator, TheRootIsReachedOverNoLink)
{
    DirectoryItem item;
    EXPECT_TRUE(
        LinuxFileManager().enumerator("/", ItemKeys::None, LinksToStart::Refuse)->next(item));
}

TEST(LinuxDirectoryEnumerator, CountsLevelsFromOne)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFile("a/b");
    const auto enumerator
        = LinuxFileManager().enumerator(tree.path(), ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    ASSERT_TRUE(enumerator->next(item));
    EXPECT_EQ(item.level, 1U);
    ASSERT_TRUE(enumerator->next(item));
    EXPECT_EQ(item.level, 2U);
}

TEST(LinuxDirectoryEnumerator, WithoutKeysItOnlyListsAndWalks)
{
    const TempTree tree;
    tree.makeFolder(".a");
    tree.makeFile(".a/b", 5000);
    const auto enumerator
        = LinuxFileManager().enumerator(tree.path(), ItemKeys::None, LinksToStart::Follow);
    DirectoryItem item;
    ASSERT_TRUE(enumerator->next(item));
    EXPECT_TRUE(item.isDirectory);
    EXPECT_FALSE(item.isHidden);
    ASSERT_TRUE(enumerator->next(item));
    EXPECT_EQ(item.name, "b");
    EXPECT_EQ(item.allocatedBytes, 0U);
}

/// Folders with a folder inside each, and who opens any of them.
class CountAheadTest : public testing::Test {
protected:
    static constexpr int kFolders = 50;

    CountAheadTest()
        : m_opened(::inotify_init1(IN_CLOEXEC))
    {
        for (int i = 0; i < kFolders; ++i) {
            const std::string folder = "f" + std::to_string(i);
            m_tree.makeFolder(folder);
            m_tree.makeFolder(folder + "/deep");
            m_tree.makeFolder(folder + "/deep/deeper");
            ::inotify_add_watch(m_opened.number(), m_tree.pathOf(folder).c_str(), IN_OPEN);
        }
        ::inotify_add_watch(m_opened.number(), m_tree.path().c_str(), IN_OPEN);
    }

    /// Notes the folders that were opened since; false when none is within a minute.
    bool awaitOpening()
    {
        pollfd waiting{m_opened.number(), POLLIN, 0};
        constexpr int kMilliseconds = 60000;
        return ::poll(&waiting, 1, kMilliseconds) == 1 && noteOpened();
    }

    bool noteOpened()
    {
        alignas(inotify_event) std::array<char, 65536> events{};
        const ssize_t bytes = ::read(m_opened.number(), events.data(), events.size());
        for (ssize_t at = 0; at < bytes;) {
            const auto* event = reinterpret_cast<const inotify_event*>(events.data() + at);
            if (event->len > 0) {
                opened.insert(static_cast<const char*>(event->name));
            }
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
        return bytes > 0;
    }

    TempTree m_tree;
    FileDescriptor m_opened;
    std::set<std::string> opened;
};

TEST_F(CountAheadTest, ReadsTheFoldersInTheStartBeforeTheyAreAskedFor)
{
    const auto enumerator
        = LinuxFileManager().enumerator(m_tree.path(), ItemKeys::None, LinksToStart::Follow);
    while (opened.size() < kFolders && awaitOpening()) { }
    EXPECT_EQ(opened.size(), static_cast<std::size_t>(kFolders));
}

TEST_F(CountAheadTest, ReadsNothingDeeperThatIsNotAskedFor)
{
    const auto enumerator
        = LinuxFileManager().enumerator(m_tree.path(), ItemKeys::None, LinksToStart::Follow);
    DirectoryItem item;
    int count = 0;
    while (enumerator->next(item)) {
        ++count;
        if (item.level == 2) {
            enumerator->skipDescendants();
        }
    }
    EXPECT_EQ(count, 2 * kFolders);
    ASSERT_TRUE(noteOpened());
    EXPECT_FALSE(opened.contains("deep"));
}

TEST_F(CountAheadTest, FindsWhatIsDeeperAllTheSame)
{
    const auto enumerator
        = LinuxFileManager().enumerator(m_tree.path(), ItemKeys::None, LinksToStart::Follow);
    DirectoryItem item;
    int count = 0;
    while (enumerator->next(item)) {
        ++count;
    }
    EXPECT_EQ(count, 3 * kFolders);
}

TEST(LinuxDirectoryEnumerator, WalksAroundItsItemsWhileOthersChangeTheTree)
{
    const TempTree tree(TempTree::fastParent());
    makeRandomTree(tree, 8);
    tree.makeFolder("kept");
    tree.makeFile("kept/file");
    std::atomic<bool> isDone{false};
    std::thread others([&] {
        for (unsigned i = 0; !isDone; ++i) {
            const std::string name = "changing" + std::to_string(i % 8);
            tree.makeFolder(name);
            tree.makeFile(name + "/file");
            tree.rename(name, "moved");
            tree.removeFile("moved/file");
            tree.removeFolder("moved");
        }
    });
    for (int i = 0; i < 20; ++i) {
        EXPECT_THAT(sortedPaths(tree.path()), testing::IsSupersetOf({"kept", "kept/file"}));
    }
    isDone = true;
    others.join();
}

} // namespace
} // namespace tessera::test
