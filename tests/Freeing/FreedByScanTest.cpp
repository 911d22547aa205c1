// SPDX-License-Identifier: MIT
#include "Freeing/FreedByScan.h"

#include "Model/Allocation.h"
#include "Model/Document.h"
#include "Model/TopFolder.h"
#include "Model/TreeEdit.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace tessera {
namespace {

using test::at;
using test::makeTree;
using testing::ElementsAre;

using Reason = KeptFiles::Reason;

FreedSpace freed(TopFolder& top, std::initializer_list<std::string_view> paths)
{
    std::vector<const File*> items;
    for (const std::string_view path : paths) {
        items.push_back(&at(top, path));
    }
    return FreedByScan(items).space();
}

FreedSpace exactly(std::uint64_t bytes)
{
    return {bytes, bytes, {}};
}

TEST(FreedByScan, WithoutItemsNothingIsFreed)
{
    EXPECT_EQ(FreedByScan({}).space(), exactly(0));
}

TEST(FreedByScan, FilesOfOneNameAreFreed)
{
    const auto top = makeTree("/t", "a/ ( x:700 b/ ( y:20 ) ) z:3 w:8000");
    EXPECT_EQ(freed(*top, {"a", "z"}), exactly(723));
}

TEST(FreedByScan, TheBlocksOfFoldersAreFreed)
{
    const auto top = makeTree("/t", "a/ ( x:700 b/ ( c/ ( y:20 ) ) ) d/ ( z:3 )");
    nodeCast<Folder>(&at(*top, "a"))->setOwnAllocation(4096);
    nodeCast<Folder>(&at(*top, "a/b/c"))->setOwnAllocation(12288);
    nodeCast<Folder>(&at(*top, "d"))->setOwnAllocation(65536);
    EXPECT_EQ(freed(*top, {"a"}), exactly(700 + 20 + 4096 + 12288));
    EXPECT_EQ(FreedByScan({&at(*top, "a")}).questionAbout(0).folderBytes, 4096U + 12288U);
}

TEST(FreedByScan, AnItemInAnotherOneCountsOnce)
{
    const auto top = makeTree("/t", "a/ ( b/ ( x:700 ) y:20 )");
    nodeCast<Folder>(&at(*top, "a/b"))->setOwnAllocation(512);
    EXPECT_EQ(freed(*top, {"a/b/x", "a", "a/b", "a"}), exactly(1232));
}

TEST(FreedByScan, AFileWhoseNamesAreAllInsideIsFreedOnce)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/3 y:700#5/3 ) b/ ( z:700#5/3 ) c:1");
    EXPECT_EQ(freed(*top, {"a", "b/z"}), exactly(700));
}

TEST(FreedByScan, AFileWithANameElsewhereFreesNothingAndSaysWhy)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/3 y:700#5/3 v:1 ) b/ ( z:700#5/3 )");
    EXPECT_EQ(freed(*top, {"a"}), (FreedSpace{1, 1, {{Reason::LinksElsewhere, 1, "/t/a/x"}}}));
    EXPECT_EQ(freed(*top, {"b"}), (FreedSpace{0, 0, {{Reason::LinksElsewhere, 1, "/t/b/z"}}}))
        << "where the size does not stand";
}

TEST(FreedByScan, AFileWithNamesThatTheTreeDoesNotKnowMayFreeNothing)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/3 y:700#5/3 v:1 )");
    EXPECT_EQ(freed(*top, {"a"}), (FreedSpace{1, 701, {{Reason::LinksOutsideScan, 1, "/t/a/x"}}}));
}

TEST(FreedByScan, ANameElsewhereIsReasonEnough)
{
    const auto top = makeTree("/t", "x:700#5/3 y:700#5/3");
    EXPECT_EQ(freed(*top, {"x"}), (FreedSpace{0, 0, {{Reason::LinksElsewhere, 1, "/t/x"}}}));
}

TEST(FreedByScan, OfEachReasonTheLargestFileIsNamed)
{
    const auto top = makeTree(
        "/t",
        "a/ ( p:10#1/2 q:30#2/2 r:20#3/2 s:4#4/2 t:5#5/2 ) b/ ( p:10#1/2 q:30#2/2 r:20#3/2 )");
    EXPECT_EQ(
        freed(*top, {"a"}),
        (FreedSpace{
            0,
            9,
            {{Reason::LinksElsewhere, 3, "/t/a/q"}, {Reason::LinksOutsideScan, 2, "/t/a/t"}}}));
}

TEST(FreedByScan, WhatASecondItemBringsMakesItWhole)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 )");
    EXPECT_EQ(freed(*top, {"a"}).most, 0U);
    EXPECT_EQ(freed(*top, {"b"}).most, 0U);
    EXPECT_EQ(freed(*top, {"a", "b"}), exactly(700));
}

TEST(FreedByScan, AFileOfMoreNamesThanItsCountIsFreed)
{
    // One of them has gone since, in a part that was not read anew.
    const auto top = makeTree("/t", "a/ ( x:700#5/1 y:700#5/1 )");
    EXPECT_EQ(freed(*top, {"a"}), exactly(700));
}

TEST(FreedByScan, WhenANameHasLeftTheTreeTheOthersDecide)
{
    const auto top = makeTree("/t", "a/ ( x:700#5/2 ) b/ ( y:700#5/2 )");
    takeOut(at(*top, "a/x"));
    EXPECT_EQ(freed(*top, {"b"}), (FreedSpace{0, 700, {{Reason::LinksOutsideScan, 1, "/t/b/y"}}}))
        << "it may be in the trash";
}

TEST(FreedByScan, SizesBeyondAllMeasurePromiseNoMoreThanTheLargest)
{
    const auto top = makeTree("/t", "a:1 b:1");
    at(*top, "a").setTotalAllocation(kMaxAllocation);
    EXPECT_EQ(freed(*top, {"a", "b"}), exactly(kMaxAllocation));
}

TEST(FreedByScan, TheDiskIsToBeAskedAboutTheLargestFiles)
{
    const auto top = makeTree("/t", "a/ ( x:30 b/ ( y:700 v:2 ) w:0 ) z:8000 u:50");
    const std::vector<const File*> items{&at(*top, "a"), &at(*top, "u")};
    const FreeingQuestion question = FreedByScan(items).questionAbout(3);
    EXPECT_EQ(question.byScan, exactly(782));
    EXPECT_THAT(
        question.files,
        ElementsAre(
            FileToLookAt{"/t/a/b/y", 700, 1},
            FileToLookAt{"/t/u", 50, 1},
            FileToLookAt{"/t/a/x", 30, 1}));
    EXPECT_EQ(question.otherFiles, 1U);
}

TEST(FreedByScan, OfAFileWithSeveralNamesTheDiskIsAskedOnceUnlessItStays)
{
    const auto top = makeTree(
        "/t", "c/ ( o:9#7/2 ) a/ ( x:700#5/2 y:700#5/2 v:20#6/3 ) b/ ( w:20#6/3 p:9#7/2 )");
    EXPECT_THAT(
        FreedByScan({&at(*top, "a"), &at(*top, "b")}).questionAbout(10).files,
        ElementsAre(FileToLookAt{"/t/a/x", 700, 2}, FileToLookAt{"/t/a/v", 20, 2}));
}

TEST(FreedByScan, TheDiskIsAskedByPathsWithoutLinks)
{
    const auto top = makeTree("/way/t", "a:1");
    top->setRealOrigin("/real/t");
    EXPECT_THAT(
        FreedByScan({&at(*top, "a")}).questionAbout(10).files,
        ElementsAre(FileToLookAt{"/real/t/a", 1, 1}));
}

TEST(FreedByScan, AHundredThousandLinksAreToldApart)
{
    constexpr std::uint64_t kFiles = 50'000;
    const auto top = makeNode<TopFolder>("t");
    top->setOrigin("/t");
    // Every second file has its other name outside of "a", which is looked at.
    auto a = makeNode<Folder>("a");
    auto b = makeNode<Folder>("b");
    const auto addName = [&top](Folder& folder, std::uint64_t inode, const char* prefix) {
        auto name = makeNode<Document>(prefix + std::to_string(inode));
        name->setTotalAllocation(
            top->linkedNames().add(*name, {1, inode}, 2) ? inode : std::uint64_t{0});
        folder.addChild(std::move(name));
    };
    std::uint64_t expected = 0;
    for (std::uint64_t inode = 1; inode <= kFiles; ++inode) {
        addName(*a, inode, "x");
        addName(inode % 2 == 0 ? *a : *b, inode, "y");
        expected += inode % 2 == 0 ? inode : 0;
    }
    top->addChild(std::move(a));
    top->addChild(std::move(b));
    top->sort();
    const FreedSpace space = freed(*top, {"a"});
    EXPECT_EQ(space.least, expected);
    EXPECT_EQ(space.most, expected);
    ASSERT_EQ(space.kept.size(), 1U);
    EXPECT_EQ(space.kept[0], (KeptFiles{Reason::LinksElsewhere, kFiles / 2, "/t/a/x49999"}));
}

} // namespace
} // namespace tessera
