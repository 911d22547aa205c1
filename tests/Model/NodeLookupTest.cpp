// SPDX-License-Identifier: MIT
#include "Model/NodeLookup.h"

#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "Model/Volume.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

class NodeLookup : public testing::Test {
protected:
    File& node(std::string_view path) { return test::at(*m_top, path); }
    TopFolder& top() { return *m_top; }

private:
    std::unique_ptr<TopFolder> m_top
        = test::makeTree("/data", "a/ ( x:1 ) ab/ ( y:2 deep/ ( z:3 ) )");
};

TEST_F(NodeLookup, FindsTheTopFolderItself)
{
    EXPECT_EQ(nodeAtPath(top(), "/data"), &top());
}

TEST_F(NodeLookup, FindsNodesAtAnyDepth)
{
    EXPECT_EQ(nodeAtPath(top(), "/data/a"), &node("a"));
    EXPECT_EQ(nodeAtPath(top(), "/data/ab/deep/z"), &node("ab/deep/z"));
}

TEST_F(NodeLookup, ComparesWholeNames)
{
    EXPECT_EQ(nodeAtPath(top(), "/data/ab/y"), &node("ab/y"));
    EXPECT_EQ(nodeAtPath(top(), "/data/abc"), nullptr);
    EXPECT_EQ(nodeAtPath(top(), "/database"), nullptr);
}

TEST_F(NodeLookup, FindsNothingBelowADocument)
{
    EXPECT_EQ(nodeAtPath(top(), "/data/a/x/y"), nullptr);
}

TEST_F(NodeLookup, FindsNothingOutsideTheTree)
{
    for (const char* path :
         {"/", "/dat", "/data/x", "/data/ab/z", "/data/ab/dee", "/data/ab/deep/z/x"}) {
        EXPECT_EQ(nodeAtPath(top(), path), nullptr) << path;
    }
}

TEST_F(NodeLookup, FindsBelowTheRootOfTheFileSystem)
{
    const auto root = test::makeTree("/", "usr/ ( bin:1 )");
    EXPECT_EQ(nodeAtPath(*root, "/usr/bin"), &test::at(*root, "usr/bin"));
    EXPECT_EQ(nodeAtPath(*root, "/"), root.get());
}

TEST_F(NodeLookup, ALargerFolderHidesNoSiblingThatItsNameBegins)
{
    const auto home = test::makeTree("/home", "a/ ( x:700 ) ab/ ( y:300 )");
    EXPECT_EQ(nodeAtPath(*home, "/home/ab"), &test::at(*home, "ab"));
    EXPECT_EQ(nodeAtPath(*home, "/home/ab/y"), &test::at(*home, "ab/y"));
}

TEST_F(NodeLookup, TheSpaceNodesOfAVolumeHideNothing)
{
    const auto volume = makeNode<Volume>("/");
    volume->setOrigin("/");
    auto home = makeNode<Folder>("home");
    const Folder& expected = *home;
    volume->addChild(std::move(home));
    volume->refreshVolume(test::FixedFileSystem(FileSystemSizes{1000, 900}));
    EXPECT_EQ(nodeAtPath(*volume, "/home"), &expected);
}

TEST_F(NodeLookup, FindsWhatARescannedFolderHolds)
{
    static_cast<Folder&>(node("ab"))
        .replaceChild(node("ab/deep"), test::makeTree("/data/ab/deep", "w:5"));
    EXPECT_EQ(nodeAtPath(top(), "/data/ab/deep/w"), &node("ab/deep/w"));
    EXPECT_EQ(nodeAtPath(top(), "/data/ab/deep/z"), nullptr);
}

TEST_F(NodeLookup, AVeryDeepTreeTakesNoLongerThanItsPath)
{
    constexpr int kDepth = 100000;
    std::string path = "/top";
    auto folder = makeNode<Folder>("d");
    const Folder& deepest = *folder;
    for (int i = 1; i < kDepth; ++i) {
        auto above = makeNode<Folder>("d");
        above->addChild(std::move(folder));
        folder = std::move(above);
    }
    for (int i = 0; i < kDepth; ++i) {
        path += "/d";
    }
    const auto deep = test::makeTree("/top", "");
    deep->addChild(std::move(folder));
    EXPECT_EQ(nodeAtPath(*deep, path), &deepest);
}

TEST_F(NodeLookup, AParentIsTheFolderThatHoldsTheItem)
{
    EXPECT_EQ(parentAtPath(top(), "/data/ab/deep/new.zip"), &node("ab/deep"));
    EXPECT_EQ(parentAtPath(top(), "/data/ab/deep/z"), &node("ab/deep"));
}

TEST_F(NodeLookup, TheParentOfWhatLiesInTheTopFolderIsThatFolder)
{
    EXPECT_EQ(parentAtPath(top(), "/data/new"), &top());
    const auto root = test::makeTree("/", "docs/ ( a:1 )");
    EXPECT_EQ(parentAtPath(*root, "/new"), root.get());
}

TEST_F(NodeLookup, ThereIsNoParentOutsideTheTree)
{
    EXPECT_EQ(parentAtPath(top(), "/home/new"), nullptr);
    EXPECT_EQ(parentAtPath(top(), "/data/gone/new"), nullptr);
    EXPECT_EQ(parentAtPath(top(), ""), nullptr);
}

TEST_F(NodeLookup, ADocumentIsNobodysParent)
{
    EXPECT_EQ(parentAtPath(top(), "/data/a/x/new"), nullptr);
}

TEST_F(NodeLookup, ALargerSiblingWhoseNameIsAPrefixHidesNoParent)
{
    const auto tree = test::makeTree("/a", "b/ ( x:9 ) bc/ ( y:1 )");
    EXPECT_EQ(parentAtPath(*tree, "/a/bc/new"), &test::at(*tree, "bc"));
}

TEST_F(NodeLookup, TheNearestIsTheDeepestOnTheWay)
{
    EXPECT_EQ(nearestNodeAtPath(top(), "/data/ab/deep/gone/away"), &node("ab/deep"));
    EXPECT_EQ(nearestNodeAtPath(top(), "/data/ab/deep/z"), &node("ab/deep/z"));
    EXPECT_EQ(nearestNodeAtPath(top(), "/elsewhere"), nullptr);
}

TEST_F(NodeLookup, FoldersAndDocumentsAreItems)
{
    EXPECT_TRUE(isItem(node("a")));
    EXPECT_TRUE(isItem(node("a/x")));
    EXPECT_TRUE(isItem(top()));
}

TEST_F(NodeLookup, SpaceIsNoItem)
{
    EXPECT_FALSE(isItem(*makeNode<FreeSpace>("")));
    EXPECT_FALSE(isItem(*makeNode<Unknown>("")));
    EXPECT_FALSE(isItem(*makeNode<TimeMachine>("")));
}

TEST_F(NodeLookup, ANodesPlaceIsItsPathWhereNoLinkLedToTheScan)
{
    EXPECT_EQ(placeOnDisk(node("ab/deep")), Url("/data/ab/deep", true));
    EXPECT_EQ(placeOnDisk(node("a/x")), Url("/data/a/x", false));
}

TEST_F(NodeLookup, ANodesPlaceBeginsWhereTheLinksToTheScanLed)
{
    top().setRealOrigin("/disk/data");
    EXPECT_EQ(placeOnDisk(node("ab/deep/z")), Url("/disk/data/ab/deep/z", false));
    EXPECT_EQ(placeOnDisk(top()), Url("/disk/data", true));
}

TEST_F(NodeLookup, ALinkToTheRootLeadsToPathsWithoutASlashTooMany)
{
    top().setRealOrigin("/");
    EXPECT_EQ(placeOnDisk(node("a/x")), Url("/a/x", false));
}

TEST_F(NodeLookup, BelowARescannedFolderThePlaceBeginsThereToo)
{
    top().setRealOrigin("/disk/data");
    auto& above = static_cast<Folder&>(node("ab"));
    auto rescanned = test::makeTree("/data/ab/deep", "w:5");
    rescanned->setRealOrigin("/elsewhere");
    above.replaceChild(node("ab/deep"), std::move(rescanned));
    EXPECT_EQ(placeOnDisk(node("ab/deep/w")), Url("/disk/data/ab/deep/w", false));
}

TEST_F(NodeLookup, APlaceOnTheDiskHasItsPathInTheTree)
{
    top().setRealOrigin("/disk/data");
    EXPECT_EQ(pathInTree(top(), "/disk/data/ab/new"), "/data/ab/new");
    EXPECT_EQ(pathInTree(top(), "/disk/data"), "/data");
    EXPECT_EQ(pathInTree(top(), "/disk/database"), "/disk/database");
}

TEST_F(NodeLookup, ANodeIsAtItselfAndBelowWhatHoldsIt)
{
    EXPECT_TRUE(isAtOrBelow(node("ab/deep"), node("ab/deep")));
    EXPECT_TRUE(isAtOrBelow(node("ab/deep/z"), node("ab")));
    EXPECT_FALSE(isAtOrBelow(node("ab"), node("ab/deep")));
    EXPECT_FALSE(isAtOrBelow(node("a/x"), node("ab")));
}

} // namespace
} // namespace tessera
