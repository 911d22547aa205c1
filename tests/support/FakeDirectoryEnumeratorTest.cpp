// SPDX-License-Identifier: MIT
#include "support/Fakes/FakeDirectoryEnumerator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> walk(
    const FakeFileManager& fileManager, std::string_view skipped = "no such item")
{
    std::vector<std::string> names;
    const auto enumerator
        = fileManager.enumerator("/disk", ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    while (enumerator->next(item)) {
        names.emplace_back(item.name);
        if (item.name == skipped) {
            enumerator->skipDescendants();
        }
    }
    return names;
}

TEST(FakeDirectoryEnumerator, DeliversTheItemsDepthFirst)
{
    EXPECT_THAT(walk(FakeFileManager("a/ ( b/ ( c:1 ) ) d:2")), ElementsAre("a", "b", "c", "d"));
}

TEST(FakeDirectoryEnumerator, GivesEachItemItsKeys)
{
    const FakeFileManager fileManager("a/ ( .b:700 )");
    const auto enumerator
        = fileManager.enumerator("/disk", ItemKeys::SizeAndHidden, LinksToStart::Follow);
    DirectoryItem item;
    ASSERT_TRUE(enumerator->next(item));
    ASSERT_TRUE(enumerator->next(item));
    EXPECT_EQ(item.level, 2U);
    EXPECT_TRUE(item.isHidden);
    EXPECT_FALSE(item.isDirectory);
    EXPECT_EQ(item.allocatedBytes, 700U);
}

TEST(FakeDirectoryEnumerator, LeavesTheKeysOutWhenNoneAreAskedFor)
{
    const FakeFileManager fileManager(".b:700");
    const auto enumerator = fileManager.enumerator("/disk", ItemKeys::None, LinksToStart::Follow);
    DirectoryItem item;
    ASSERT_TRUE(enumerator->next(item));
    EXPECT_FALSE(item.isHidden);
    EXPECT_EQ(item.allocatedBytes, 0U);
}

TEST(FakeDirectoryEnumerator, AnUnreadableDirectoryComesEmpty)
{
    FakeFileManager fileManager("a/ ( b/ ( c:1 ) ) d:2");
    fileManager.makeUnreadable("a/b");
    EXPECT_THAT(walk(fileManager), ElementsAre("a", "b", "d"));
}

TEST(FakeDirectoryEnumerator, AnUnreadableRootYieldsNothing)
{
    FakeFileManager fileManager("a/ ( b:1 ) d:2");
    fileManager.makeUnreadable("");
    EXPECT_THAT(walk(fileManager), IsEmpty());
}

TEST(FakeDirectoryEnumerator, WhatVanishesDoesNotCome)
{
    FakeFileManager fileManager("a/ ( b/ ( c:1 ) d:2 ) e:3");
    fileManager.makeVanish("a/b");
    fileManager.makeVanish("e");
    EXPECT_THAT(walk(fileManager), ElementsAre("a", "d"));
}

TEST(FakeDirectoryEnumerator, SkippingADirectoryLeavesOutAllBelowIt)
{
    EXPECT_THAT(walk(FakeFileManager("a/ ( b/ ( c:1 ) ) d:2"), "a"), ElementsAre("a", "d"));
}

TEST(FakeDirectoryEnumerator, RemembersWhatWasEnumerated)
{
    const FakeFileManager fileManager("");
    walk(fileManager);
    EXPECT_THAT(fileManager.enumeratedPaths(), ElementsAre("/disk"));
}

} // namespace
} // namespace tessera::test
