// SPDX-License-Identifier: MIT
#include "Desktop/ExpectedItem.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

using Kind = ItemState::Kind;

constexpr FileTime kBefore{999, 999'999'999};
constexpr FileTime kScan{1000, 500};
constexpr FileTime kLater{1001, 0};
constexpr FileTime kNow{2000, 0};
constexpr FileTime kFuture{2000, 1};

class ExpectedItemTest : public testing::Test {
protected:
    ItemChange change() const { return changeOf(m_expected, m_found, kNow); }

    const ExpectedItem m_expected{{Kind::File, {1, 5}, 1, 100, kBefore, kBefore}, kScan};
    ItemState m_found = m_expected.state;
};

TEST_F(ExpectedItemTest, WhatIsAsItWasHasNotChanged)
{
    EXPECT_EQ(change(), ItemChange::None);
}

TEST_F(ExpectedItemTest, AnotherInodeOrDeviceIsAnotherItem)
{
    m_found.identity = {1, 6};
    EXPECT_EQ(change(), ItemChange::OtherItem);
    m_found.identity = {2, 5};
    EXPECT_EQ(change(), ItemChange::OtherItem);
}

TEST_F(ExpectedItemTest, AnotherKindIsAnotherItem)
{
    m_found.kind = Kind::SymbolicLink;
    EXPECT_EQ(change(), ItemChange::OtherItem);
}

TEST_F(ExpectedItemTest, AChangeSinceItWasChosenIsAChange)
{
    m_found.modified = {999, 0};
    EXPECT_EQ(change(), ItemChange::Changed);
    m_found = m_expected.state;
    m_found.changed = {999, 0};
    EXPECT_EQ(change(), ItemChange::Changed);
}

/// What an item looks like that was the same when it was chosen.
ItemChange changeWithTimes(const FileTime& modified, const FileTime& changed)
{
    const ItemState state{Kind::File, {1, 5}, 1, 100, modified, changed};
    return changeOf({state, kScan}, state, kNow);
}

TEST(ExpectedItem, AChangeBetweenScanAndChoiceIsAChange)
{
    EXPECT_EQ(changeWithTimes(kBefore, kLater), ItemChange::Changed);
    EXPECT_EQ(changeWithTimes(kLater, kBefore), ItemChange::Changed);
}

TEST(ExpectedItem, AChangeInTheMomentOfTheScanIsAChange)
{
    EXPECT_EQ(changeWithTimes(kBefore, kScan), ItemChange::Changed);
    EXPECT_EQ(changeWithTimes(kScan, kBefore), ItemChange::Changed);
}

TEST(ExpectedItem, ADateInTheFutureSaysNothing)
{
    EXPECT_EQ(changeWithTimes(kFuture, kBefore), ItemChange::None);
    EXPECT_EQ(changeWithTimes(kNow, kBefore), ItemChange::Changed);
}

TEST(ExpectedItem, AFutureThatOnlyTheSystemSetsIsAChange)
{
    EXPECT_EQ(changeWithTimes(kBefore, kFuture), ItemChange::Changed);
}

TEST(ExpectedItem, AFolderThatHasChangedIsTheSameFolder)
{
    const ItemState chosen{Kind::Folder, {1, 5}, 2, 4096, kBefore, kBefore};
    ItemState found = chosen;
    found.modified = kLater;
    found.changed = kLater;
    EXPECT_EQ(changeOf({chosen, kScan}, found, kNow), ItemChange::FolderChanged);
    found.identity = {1, 6};
    EXPECT_EQ(changeOf({chosen, kScan}, found, kNow), ItemChange::OtherItem);
}

TEST_F(ExpectedItemTest, WhatWasMadeAtAnotherTimeIsAnotherItem)
{
    m_found.birth = kLater;
    EXPECT_EQ(change(), ItemChange::None) << "nobody knows when the first was made";
    ExpectedItem expected = m_expected;
    expected.state.birth = kBefore;
    EXPECT_EQ(changeOf(expected, m_found, kNow), ItemChange::OtherItem);
    m_found.birth = kBefore;
    EXPECT_EQ(changeOf(expected, m_found, kNow), ItemChange::None);
}

TEST(ExpectedItem, ItemsAreTheSameWhileNothingSaysOtherwise)
{
    const ItemState item{Kind::File, {1, 5}, 1, 100, kBefore, kBefore, 7, kBefore};
    ItemState other{Kind::File, {1, 5}, 2, 200, kLater, kLater, 8, {}};
    EXPECT_TRUE(isSameItem(item, other));
    EXPECT_TRUE(isSameItem(other, item));
    other.birth = kLater;
    EXPECT_FALSE(isSameItem(item, other));
    other.birth = kBefore;
    EXPECT_TRUE(isSameItem(item, other));
    other.kind = Kind::Other;
    EXPECT_FALSE(isSameItem(item, other));
}

/// What has become of a folder that is as it was when it was chosen, and was made then.
ItemChange changeOfFolderMade(const FileTime& birth)
{
    const ItemState state{Kind::Folder, {1, 5}, 2, 4096, kBefore, kLater, 0, birth};
    return changeOf({state, kScan}, state, kNow);
}

TEST(ExpectedItem, AFolderThatWasMadeSinceTheScanIsNotTheOneItShowed)
{
    EXPECT_EQ(changeOfFolderMade(kBefore), ItemChange::FolderChanged);
    EXPECT_EQ(changeOfFolderMade(kScan), ItemChange::MadeSinceScan);
    EXPECT_EQ(changeOfFolderMade(kNow), ItemChange::MadeSinceScan);
    EXPECT_EQ(changeOfFolderMade(kFuture), ItemChange::FolderChanged) << "the clock was wrong";
}

/// What has become of a file of which the program itself moved another name at kLater.
class ExpectedNameTest : public ExpectedItemTest {
protected:
    ItemChange changeWithDates(const FileTime& modified, const FileTime& changed)
    {
        ExpectedItem expected = m_expected;
        expected.movedByOtherName = FileTime{1001, 1};
        m_found.modified = modified;
        m_found.changed = changed;
        return changeOf(expected, m_found, kNow);
    }
};

TEST_F(ExpectedNameTest, MovingTheOtherNameIsNoChange)
{
    EXPECT_EQ(changeWithDates(kBefore, kLater), ItemChange::None);
}

TEST_F(ExpectedNameTest, WhatHappensSinceThatIsAChange)
{
    EXPECT_EQ(changeWithDates(kBefore, {1001, 1}), ItemChange::Changed);
}

TEST_F(ExpectedNameTest, WritingItBeforeThatIsAChange)
{
    EXPECT_EQ(changeWithDates(kScan, kLater), ItemChange::Changed);
    EXPECT_EQ(changeWithDates({998, 0}, kLater), ItemChange::Changed);
}

TEST(ExpectedItem, ANameThatIsChosenAfterTheOtherMovedIsAsItWas)
{
    const ItemState state{Kind::File, {1, 5}, 2, 100, kBefore, kLater};
    EXPECT_EQ(changeOf({state, kScan, FileTime{1001, 1}}, state, kNow), ItemChange::None);
    EXPECT_EQ(changeOf({state, kScan, kLater}, state, kNow), ItemChange::Changed);
}

TEST(ExpectedItem, NumbersOfNamesAndBlocksAreNoChangeOfTheirOwn)
{
    // Where these change, a time does.
    const ItemState chosen{Kind::File, {1, 5}, 1, 100, kBefore, kBefore};
    ItemState found = chosen;
    found.allocatedBytes = 4096;
    EXPECT_EQ(changeOf({chosen, kScan}, found, kNow), ItemChange::None) << "it was written out";
}

} // namespace
} // namespace tessera
