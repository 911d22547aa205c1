// SPDX-License-Identifier: MIT
#include "Model/Folder.h"

#include "Model/Document.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::_;
using testing::ElementsAre;

std::unique_ptr<Document> document(std::string_view name, std::uint64_t bytes)
{
    auto node = makeNode<Document>(name);
    node->setTotalAllocation(bytes);
    return node;
}

std::vector<std::string> namesOf(const Folder& folder)
{
    std::vector<std::string> names;
    for (const File* child : folder.children()) {
        names.emplace_back(child->name());
    }
    return names;
}

std::vector<int> huesOf(const Folder& folder)
{
    std::vector<int> hues;
    for (const File* child : folder.children()) {
        hues.push_back(child->hue());
    }
    return hues;
}

TEST(Folder, AddChildRaisesOnlyThisFoldersTotal)
{
    auto outer = makeNode<Folder>("outer");
    outer->addChild(document("rest", 500));
    auto& inner = static_cast<Folder&>(outer->addChild(makeNode<Folder>("inner")));
    inner.addChild(document("new", 100));
    EXPECT_EQ(inner.totalAllocation(), 100U);
    EXPECT_EQ(outer->totalAllocation(), 500U);
}

TEST(Folder, KnowsWhatTheDirectoryItselfTakes)
{
    auto folder = makeNode<Folder>("f");
    EXPECT_EQ(folder->ownAllocation(), 0U);
    folder->setOwnAllocation(12288);
    EXPECT_EQ(folder->ownAllocation(), 12288U);
    EXPECT_EQ(folder->totalAllocation(), 0U);
    EXPECT_EQ(folder->fragment(), "f");
}

TEST(Folder, ADirectoryThatTakesMoreThanAnyDoesHasTheMostThatIsKept)
{
    auto folder = makeNode<Folder>("f");
    folder->setOwnAllocation(2'199'023'255'040); // (2^32 - 1) x 512
    EXPECT_EQ(folder->ownAllocation(), 2'199'023'255'040U);
    folder->setOwnAllocation(2'199'023'255'552);
    EXPECT_EQ(folder->ownAllocation(), 2'199'023'255'040U);
}

constexpr std::uint64_t kLargest = 0x7FFF'FFFF'FFFF'FFFF; // 2^63 - 1 bytes

TEST(Folder, ATotalThatIsTooLargeStopsAtTheLargestSize)
{
    auto folder = makeNode<Folder>("f");
    for (const char* name : {"a", "b", "c"}) {
        folder->addChild(document(name, kLargest));
    }
    folder->addChild(document("d", 3));
    EXPECT_EQ(folder->totalAllocation(), kLargest);
}

TEST(Folder, WhatIsLeftOfATotalThatWasTooLargeIsKnown)
{
    auto outer = makeNode<Folder>("outer");
    auto folder = makeNode<Folder>("f");
    File& large = folder->addChild(document("a", kLargest));
    folder->addChild(document("b", 7));
    auto& inner = static_cast<Folder&>(outer->addChild(std::move(folder)));
    outer->addChild(document("c", 5));
    inner.removeChild(large);
    EXPECT_EQ(inner.totalAllocation(), 7U);
    EXPECT_EQ(outer->totalAllocation(), 12U);
}

TEST(Folder, InsertingAndReplacingStopAtTheLargestSizeToo)
{
    auto folder = makeNode<Folder>("f");
    File& small = folder->addChild(document("a", 10));
    folder->insertChild(document("b", kLargest));
    EXPECT_EQ(folder->totalAllocation(), kLargest);
    folder->replaceChild(small, document("a", kLargest - 1));
    EXPECT_EQ(folder->totalAllocation(), kLargest);
}

TEST(Folder, AddChildSetsTheParentAndAppends)
{
    auto folder = makeNode<Folder>("f");
    folder->addChild(document("small", 1));
    folder->addChild(document("large", 9));
    EXPECT_THAT(namesOf(*folder), ElementsAre("small", "large"));
    EXPECT_EQ(folder->children()[0]->parent(), folder.get());
}

TEST(Folder, AddChildSortsAFolderThatItAttaches)
{
    auto inner = makeNode<Folder>("inner");
    inner->addChild(document("small", 1));
    inner->addChild(document("large", 9));
    auto outer = makeNode<Folder>("outer");
    const auto& attached = static_cast<Folder&>(outer->addChild(std::move(inner)));
    EXPECT_THAT(namesOf(attached), ElementsAre("large", "small"));
}

TEST(Folder, InsertChildRaisesAndSortsEveryAncestor)
{
    const auto top = test::makeTree("/t", "a/ ( b/ ( x:100 ) y:200 ) z:350");
    static_cast<Folder&>(test::at(*top, "a/b")).insertChild(document("new", 150));
    EXPECT_EQ(test::at(*top, "a/b").totalAllocation(), 250U);
    EXPECT_EQ(test::at(*top, "a").totalAllocation(), 450U);
    EXPECT_EQ(top->totalAllocation(), 800U);
    EXPECT_THAT(namesOf(*top), ElementsAre("a", "z"));
    EXPECT_THAT(namesOf(static_cast<Folder&>(test::at(*top, "a"))), ElementsAre("b", "y"));
    EXPECT_THAT(namesOf(static_cast<Folder&>(test::at(*top, "a/b"))), ElementsAre("new", "x"));
}

TEST(Folder, InsertChildLeavesTheChildsOwnChildrenUnsorted)
{
    const auto top = test::makeTree("/t", "x:1");
    auto inner = makeNode<Folder>("inner");
    inner->addChild(document("small", 1));
    inner->addChild(document("large", 9));
    const auto& inserted = static_cast<Folder&>(top->insertChild(std::move(inner)));
    EXPECT_THAT(namesOf(inserted), ElementsAre("small", "large"));
}

TEST(Folder, RemoveChildLowersAndSortsEveryAncestor)
{
    const auto top = test::makeTree("/t", "a/ ( b/ ( x:300 y:10 ) c:200 ) d:250");
    auto& b = static_cast<Folder&>(test::at(*top, "a/b"));
    const auto removed = b.removeChild(test::at(b, "x"));
    EXPECT_EQ(removed->name(), "x");
    EXPECT_EQ(b.totalAllocation(), 10U);
    EXPECT_EQ(test::at(*top, "a").totalAllocation(), 210U);
    EXPECT_EQ(top->totalAllocation(), 460U);
    EXPECT_THAT(namesOf(*top), ElementsAre("d", "a"));
    EXPECT_THAT(namesOf(static_cast<Folder&>(test::at(*top, "a"))), ElementsAre("c", "b"));
}

TEST(Folder, RemovedAndReplacedNodesKeepTheirParentLink)
{
    const auto top = test::makeTree("/t", "x:300 y:10");
    const auto removed = top->removeChild(test::at(*top, "x"));
    const auto replaced = top->replaceChild(test::at(*top, "y"), document("z", 1));
    EXPECT_EQ(removed->parent(), top.get());
    EXPECT_EQ(replaced->parent(), top.get());
}

TEST(Folder, ReplaceChildBySmallerLowersEveryAncestorExactly)
{
    const auto top = test::makeTree("/t", "a/ ( b/ ( x:700 ) ) c:1000");
    auto& b = static_cast<Folder&>(test::at(*top, "a/b"));
    b.replaceChild(test::at(b, "x"), document("new", 200));
    EXPECT_EQ(b.totalAllocation(), 200U);
    EXPECT_EQ(test::at(*top, "a").totalAllocation(), 200U);
    EXPECT_EQ(top->totalAllocation(), 1200U);
    EXPECT_EQ(test::at(b, "new").parent(), &b);
}

TEST(Folder, ReplaceChildByLargerRaisesAndReorders)
{
    const auto top = test::makeTree("/t", "a:10 b:20 c:5");
    const auto old = top->replaceChild(test::at(*top, "c"), document("new", 50));
    EXPECT_EQ(old->name(), "c");
    EXPECT_EQ(top->totalAllocation(), 80U);
    EXPECT_THAT(namesOf(*top), ElementsAre("new", "b", "a"));
}

TEST(Folder, SevenChildrenGetSixDistinctSlotsAndOneMore)
{
    const auto top = test::makeTree("/t", "a:7 b:6 c:5 d:4 e:3 f:2 g:1");
    const std::vector<int> hues = huesOf(*top);
    const std::set<int> firstSix(hues.begin(), hues.begin() + 6);
    EXPECT_EQ(firstSix, (std::set<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_GE(hues[6], 1);
    EXPECT_LE(hues[6], 6);
}

TEST(Folder, SortingAgainChangesNoSlot)
{
    const auto top = test::makeTree("/t", "a:7 b:6 c:5 d:4 e:3 f:2 g:1");
    const std::vector<int> before = huesOf(*top);
    for (int i = 0; i < 20; ++i) {
        top->sort();
    }
    EXPECT_EQ(huesOf(*top), before);
}

std::string manyFiles(int count)
{
    std::string items;
    for (int i = 0; i < count; ++i) {
        items += "f" + std::to_string(i) + ":" + std::to_string(1000 - i) + " ";
    }
    return items;
}

TEST(Folder, SlotsDifferFromBlockToBlock)
{
    const auto top = test::makeTree("/t", manyFiles(600));
    const std::vector<int> hues = huesOf(*top);
    std::set<std::vector<int>> runs;
    for (std::size_t i = 0; i < hues.size(); i += 6) {
        runs.emplace(hues.begin() + static_cast<long>(i), hues.begin() + static_cast<long>(i) + 6);
    }
    EXPECT_GT(runs.size(), 50U);
}

TEST(Folder, SlotsFollowFromThePathAndTheOrderAlone)
{
    // Worked out by another program.
    EXPECT_THAT(
        huesOf(*test::makeTree("/t", manyFiles(14))),
        ElementsAre(5, 1, 6, 2, 4, 3, 1, 4, 3, 6, 2, 5, 3, 2));
    EXPECT_THAT(huesOf(*test::makeTree("/t/a/b", manyFiles(7))), ElementsAre(3, 2, 5, 6, 4, 1, 4));
    EXPECT_THAT(huesOf(*test::makeTree("/", manyFiles(7))), ElementsAre(5, 3, 1, 2, 6, 4, 3));
}

TEST(Folder, SlotsDifferFromFolderToFolder)
{
    std::set<std::vector<int>> patterns;
    for (int i = 0; i < 60; ++i) {
        patterns.insert(huesOf(*test::makeTree("/home/u" + std::to_string(i), manyFiles(6))));
    }
    EXPECT_GT(patterns.size(), 50U);
}

TEST(Folder, EveryFirstSlotIsAboutAsFrequent)
{
    std::vector<int> counts(7);
    for (int i = 0; i < 600; ++i) {
        ++counts.at(static_cast<std::size_t>(
            huesOf(*test::makeTree("/home/u" + std::to_string(i), "a:1")).front()));
    }
    EXPECT_THAT(counts, ElementsAre(0, _, _, _, _, _, _));
    EXPECT_GT(*std::min_element(counts.begin() + 1, counts.end()), 60);
}

TEST(Folder, ANodeInsertedLaterGetsTheSlotThatAScanWouldHaveGivenIt)
{
    const auto scanned = test::makeTree("/t", "a:9 b:8 c:7");
    const auto grown = test::makeTree("/t", "a:9 b:8");
    grown->insertChild(document("c", 7));
    EXPECT_EQ(huesOf(*grown), huesOf(*scanned));
}

TEST(Folder, ANodeInsertedLaterChangesNoOthersSlot)
{
    const auto top = test::makeTree("/t", "a:9 b:8 c:7");
    const std::vector<int> before = huesOf(*top);
    top->insertChild(document("largest", 10));
    std::vector<int> after = huesOf(*top);
    after.erase(after.begin());
    EXPECT_EQ(after, before);
}

TEST(Folder, ChildrenOfEqualSizeAreAllKept)
{
    const auto top = test::makeTree("/t", "a:5 b:5 c:5 d:9");
    EXPECT_EQ(top->children()[0]->name(), "d");
    EXPECT_THAT(namesOf(*top), testing::UnorderedElementsAre("a", "b", "c", "d"));
}

TEST(Folder, AChainOfAHundredThousandFoldersSumsAndDies)
{
    auto inner = makeNode<Folder>("f");
    inner->addChild(document("x", 7));
    for (int i = 0; i < 100'000; ++i) {
        auto outer = makeNode<Folder>("f");
        outer->addChild(std::move(inner));
        inner = std::move(outer);
    }
    EXPECT_EQ(inner->totalAllocation(), 7U);
    File* deepest = inner.get();
    while (deepest->isFolder()) {
        deepest = static_cast<Folder*>(deepest)->children()[0];
    }
    deepest->parent()->removeChild(*deepest);
    EXPECT_EQ(inner->totalAllocation(), 0U);
}

TEST(Folder, PathsOfAChainOfAHundredThousandFoldersAreWhole)
{
    std::unique_ptr<Folder> inner = makeNode<Folder>("f");
    File* const deepest = inner.get();
    for (int i = 0; i < 100'000; ++i) {
        auto outer = makeNode<Folder>("f");
        outer->addChild(std::move(inner));
        inner = std::move(outer);
    }
    EXPECT_EQ(deepest->absolutePath().size(), 200'001U);
}

} // namespace
} // namespace tessera
