// SPDX-License-Identifier: MIT
#include "Model/ScanFindings.h"

#include "Model/TreeEdit.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <type_traits>

namespace tessera {
namespace {

using test::at;
using test::makeTree;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kMost = 10'000; ///< that are named

// Nobody hears of nodes that leave the tree of a copy.
static_assert(!std::is_copy_constructible_v<ScanFindings>);
static_assert(!std::is_copy_assignable_v<ScanFindings>);

std::error_code denied()
{
    return {EACCES, std::system_category()};
}

UnreadableFolder unreadable(const std::string& path)
{
    return {path, denied()};
}

/// Has the root be unreadable under that path.
void closeRoot(TopFolder& root, const std::string& path)
{
    root.findings().addUnreadable({path, denied(), &root});
}

/// Has the folders of the tree be unreadable.
void close(TopFolder& root, const std::vector<std::string>& paths)
{
    for (const std::string& path : paths) {
        const File& folder = at(root, path);
        root.findings().addUnreadable({folder.absolutePath(), denied(), &folder});
    }
}

/// A folder of so many folders, which are unreadable.
std::unique_ptr<TopFolder> crowd(const std::string& origin, std::size_t folders)
{
    auto root = makeTree(origin, "");
    for (std::size_t i = 0; i < folders; ++i) {
        const File& folder = root->addChild(makeNode<Folder>(std::to_string(i)));
        root->findings().addUnreadable({folder.absolutePath(), denied(), &folder});
    }
    return root;
}

std::vector<std::string> pathsIn(const TopFolder& root)
{
    std::vector<std::string> paths;
    for (const UnreadableFolder& folder : root.findings().unreadable()) {
        paths.push_back(folder.path);
    }
    return paths;
}

TEST(ScanFindings, NameUnreadableFoldersInTheirOrder)
{
    const auto root = makeTree("/t", "");
    const ScanFindings& findings = root->findings();
    closeRoot(*root, "/b");
    closeRoot(*root, "/a");
    EXPECT_THAT(findings.unreadable(), ElementsAre(unreadable("/b"), unreadable("/a")));
    EXPECT_EQ(findings.unreadableCount(), 2U);
}

TEST(ScanFindings, NameTenThousandAndCountAll)
{
    const auto root = makeTree("/t", "");
    const ScanFindings& findings = root->findings();
    for (std::size_t i = 0; i < kMost - 1; ++i) {
        closeRoot(*root, "/a");
    }
    EXPECT_TRUE(findings.hasRoomForName());
    closeRoot(*root, "/last");
    EXPECT_FALSE(findings.hasRoomForName());
    closeRoot(*root, "/beyond");
    EXPECT_EQ(findings.unreadable().size(), kMost);
    EXPECT_EQ(findings.unreadable().back().path, "/last");
    EXPECT_EQ(findings.unreadableCount(), kMost + 1);
}

/// Paths may have any length.
TEST(ScanFindings, NameFewerWherePathsAreLong)
{
    const auto root = makeTree("/t", "");
    const ScanFindings& findings = root->findings();
    const std::string longPath(std::size_t{1} << 20, 'x');
    for (int i = 0; i < 20; ++i) {
        closeRoot(*root, longPath);
    }
    EXPECT_EQ(findings.unreadable().size(), 16U);
    EXPECT_EQ(findings.unreadableCount(), 20U);
}

TEST(ScanFindings, LeaveWithWhatTheyAreAtOrBelow)
{
    const auto root = makeTree("/t", "a/ ( in/ ( ) ) ab/ ( ) b/ ( )");
    close(*root, {"a", "a/in", "ab", "b"});
    takeOut(at(*root, "a"));
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/ab", "/t/b"));
    EXPECT_EQ(root->findings().unreadableCount(), 2U);
}

TEST(ScanFindings, StayWhenWhatIsInTheFolderLeaves)
{
    const auto root = makeTree("/t", "a/ ( x:1 in/ ( ) )");
    close(*root, {"a"});
    takeOut(at(*root, "a/x"));
    takeOut(at(*root, "a/in"));
    EXPECT_EQ(root->findings().unreadableCount(), 1U);
}

TEST(ScanFindings, ComeAlongUnderTheNewPath)
{
    const auto root = makeTree("/t", "a/ ( in/ ( ) ) b/ ( )");
    close(*root, {"a/in", "b"});
    LooseNode loose = takeOut(at(*root, "a"));
    loose.node->setFragment("a.2");
    putIn(static_cast<Folder&>(at(*root, "b")), std::move(loose));
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/b", "/t/b/a.2/in"));
    EXPECT_EQ(root->findings().unreadable().back().reason, denied());
    EXPECT_EQ(root->findings().unreadableCount(), 2U);
}

TEST(ScanFindings, ComeAlongInAFolderThatWasMadeForThem)
{
    const auto root = makeTree("/t", "a/ ( in/ ( ) )");
    close(*root, {"a/in"});
    LooseNode loose = takeOut(at(*root, "a"));
    auto trash = makeNode<Folder>("trash");
    trash->insertChild(std::move(loose.node));
    loose.node = std::move(trash);
    putIn(*root, std::move(loose));
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/trash/a/in"));
}

TEST(ScanFindings, OfARescanReplaceThoseAtAndBelowIt)
{
    const auto root = makeTree("/t", "a/ ( old/ ( ) ) b/ ( )");
    close(*root, {"a", "a/old", "b"});
    auto again = makeTree("/t/a", "new/ ( )");
    close(*again, {"new"});
    exchange(at(*root, "a"), loose(std::move(again)));
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/b", "/t/a/new"));
    EXPECT_EQ(root->findings().unreadableCount(), 2U);
}

TEST(ScanFindings, OfARescannedFolderItselfAreKept)
{
    const auto root = makeTree("/t", "a/ ( )");
    auto again = makeTree("/t/a", "");
    again->findings().addUnreadable({"/t/a", denied(), again.get()});
    exchange(at(*root, "a"), loose(std::move(again)));
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/a"));
    takeOut(at(*root, "a"));
    EXPECT_THAT(pathsIn(*root), IsEmpty());
}

TEST(ScanFindings, ARescanThatMeetsNoneLeavesNone)
{
    const auto root = makeTree("/t", "a/ ( in/ ( ) )");
    close(*root, {"a/in"});
    exchange(at(*root, "a"), loose(makeTree("/t/a", "in/ ( )")));
    EXPECT_EQ(root->findings().unreadableCount(), 0U);
}

TEST(ScanFindings, BeyondThoseThatAreNamedLeaveToTheLast)
{
    const auto root = makeTree("/t", "a/ ( ) b/ ( )");
    close(*root, {"b"});
    exchange(at(*root, "a"), loose(crowd("/t/a", kMost + 5)));
    EXPECT_EQ(root->findings().unreadableCount(), kMost + 6);
    EXPECT_EQ(root->findings().unreadable().size(), kMost);
    takeOut(at(*root, "a"));
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/b"));
    EXPECT_EQ(root->findings().unreadableCount(), 1U);
}

TEST(ScanFindings, BeyondThoseThatAreNamedComeBackToTheLast)
{
    const auto root = makeTree("/t", "a/ ( )");
    exchange(at(*root, "a"), loose(crowd("/t/a", kMost + 5)));
    putIn(*root, takeOut(at(*root, "a")));
    EXPECT_EQ(root->findings().unreadableCount(), kMost + 5);
    EXPECT_EQ(root->findings().unreadable().size(), kMost);
}

TEST(ScanFindings, OfManyRescansDoNotAddUp)
{
    const auto root = makeTree("/t", "a/ ( )");
    for (int i = 0; i < 3; ++i) {
        exchange(at(*root, "a"), loose(crowd("/t/a", kMost + 5)));
        EXPECT_EQ(root->findings().unreadableCount(), kMost + 5);
    }
}

TEST(ScanFindings, MakeRoomForNamesWhenTheyLeave)
{
    const auto root = makeTree("/t", "a/ ( ) b/ ( )");
    exchange(at(*root, "a"), loose(crowd("/t/a", kMost)));
    EXPECT_FALSE(root->findings().hasRoomForName());
    takeOut(at(*root, "a/7"));
    close(*root, {"b"});
    EXPECT_EQ(pathsIn(*root).back(), "/t/b");
}

TEST(ScanFindings, GiveTheRoomOfLongPathsBack)
{
    const auto root = makeTree("/t", "a/ ( ) b/ ( )");
    const std::string longPath(ScanFindings::kMostPathBytes, 'x');
    root->findings().addUnreadable({longPath, denied(), &at(*root, "a")});
    EXPECT_FALSE(root->findings().hasRoomForName());
    takeOut(at(*root, "a"));
    EXPECT_TRUE(root->findings().hasRoomForName());
}

TEST(ScanFindings, FoldersLeftOutLeaveAndComeBack)
{
    const auto root = makeTree("/t", "a/ ( out/ ( ) ) out/ ( )");
    root->findings().addLeftOut(at(*root, "a/out"));
    root->findings().addLeftOut(at(*root, "out"));
    LooseNode loose = takeOut(at(*root, "a"));
    EXPECT_EQ(root->findings().leftOut().size(), 1U);
    putIn(*root, std::move(loose));
    EXPECT_EQ(root->findings().leftOut().size(), 2U);
}

TEST(ScanFindings, OfARescanReplaceFoldersLeftOut)
{
    const auto root = makeTree("/t", "a/ ( out/ ( ) ) b/ ( )");
    root->findings().addLeftOut(at(*root, "a/out"));
    auto again = makeTree("/t/a", "one/ ( ) two/ ( )");
    again->findings().addLeftOut(at(*again, "one"));
    again->findings().addLeftOut(at(*again, "two"));
    exchange(at(*root, "a"), loose(std::move(again)));
    EXPECT_EQ(root->findings().leftOut().size(), 2U);
    exchange(at(*root, "a"), loose(makeTree("/t/a", "")));
    EXPECT_EQ(root->findings().leftOut().size(), 0U);
}

TEST(ScanFindings, KnowWhatIsMountedAsLongAsItIsInTheTree)
{
    const auto root = makeTree("/t", "home/ ( me/ ( ) )");
    root->findings().addMounted(at(*root, "home/me"));
    root->findings().addMounted(at(*root, "home/me"));
    LooseNode loose = takeOut(at(*root, "home"));
    EXPECT_THAT(root->findings().mounted(), IsEmpty());
    putIn(*root, std::move(loose));
    EXPECT_THAT(root->findings().mounted(), ElementsAre(&at(*root, "home/me")));
}

TEST(ScanFindings, OfARootStandForTheFolderInItsPlace)
{
    const auto root = makeTree("/t", "a/ ( )");
    auto scanned = makeTree("/t/a", "");
    scanned->findings().addUnreadable({"/t/a", denied(), scanned.get()});
    scanned->findings().addMounted(*scanned);
    scanned->findings().addLeftOut(*scanned);
    exchange(at(*root, "a"), loose(makeNode<Folder>("a"), *scanned));
    scanned.reset();
    const File& there = at(*root, "a");
    EXPECT_EQ(root->findings().unreadable().at(0).node, &there);
    EXPECT_TRUE(root->findings().isMounted(there));
    EXPECT_THAT(root->findings().leftOut(), ElementsAre(&there));
}

TEST(ScanFindings, StayWhenAFileLeaves)
{
    const auto root = makeTree("/t", "a/ ( in/ ( ) x:1 )");
    close(*root, {"a", "a/in"});
    root->findings().addLeftOut(at(*root, "a/in"));
    LooseNode loose = takeOut(at(*root, "a/x"));
    EXPECT_EQ(loose.findings.unreadableCount(), 0U);
    EXPECT_THAT(pathsIn(*root), ElementsAre("/t/a", "/t/a/in"));
    EXPECT_EQ(root->findings().leftOut().size(), 1U);
}

} // namespace
} // namespace tessera
