// SPDX-License-Identifier: MIT
#include "Freeing/FreedByDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;

using Reason = KeptFiles::Reason;
using Outcome = ItemAnswer::Outcome;
using State = FileExtents::State;

/// A question about files of 100 bytes each, unless the test says otherwise.
class FreedByDiskTest : public testing::Test {
protected:
    FreedByDiskTest() { m_facts.open.isCutShort = false; }

    /// A file that shares nothing, and its number among the files.
    std::size_t add(std::uint64_t bytes = 100, std::uint64_t names = 1)
    {
        const std::size_t index = m_question.files.size();
        m_question.files.push_back({"/t/" + std::to_string(index), bytes, names});
        m_question.byScan.most += bytes;
        m_facts.states.push_back(
            {Outcome::Known, {ItemState::Kind::File, {1, index}, names, bytes, {}, {}}});
        m_facts.extents.push_back({State::Known, {0, bytes, 0}});
        return index;
    }

    FreedSpace freed() const { return freedByDisk(m_question, m_facts); }

    void expectKept(std::uint64_t least, std::uint64_t most, Reason reason) const
    {
        const FreedSpace space = freed();
        EXPECT_EQ(space.least, least);
        EXPECT_EQ(space.most, most);
        ASSERT_EQ(space.kept.size(), 1U);
        EXPECT_EQ(space.kept[0], (KeptFiles{reason, 1, "/t/0", {}}));
    }

    FreeingQuestion m_question;
    FreeingFacts m_facts;
};

TEST_F(FreedByDiskTest, WhatSharesNothingIsFreed)
{
    add(700);
    add(30);
    EXPECT_EQ(freed(), (FreedSpace{730, 730, {}, false}));
}

TEST_F(FreedByDiskTest, FoldersFreeTheirBlocks)
{
    add(700);
    m_question.folderBytes = 4096;
    m_question.byScan.most += 4096;
    EXPECT_EQ(freed(), (FreedSpace{4796, 4796, {}, false}));
}

TEST_F(FreedByDiskTest, AFileFreesWhatItTakesNow)
{
    m_facts.states[add(700)].state.allocatedBytes = 900;
    EXPECT_EQ(freed(), (FreedSpace{900, 900, {}, false}));
}

TEST_F(FreedByDiskTest, BlocksBesideTheContentAreFreedAsWell)
{
    m_facts.extents[add(700)].bytes = {0, 600, 0};
    EXPECT_EQ(freed().least, 700U);
}

TEST_F(FreedByDiskTest, SharedExtentsMayStay)
{
    m_facts.extents[add()].bytes = {60, 40, 0};
    expectKept(40, 100, Reason::SharedExtents);
}

TEST_F(FreedByDiskTest, NoMoreIsPromisedThanAFileTakes)
{
    m_facts.extents[add()].bytes = {60, 4000, 0};
    expectKept(100, 100, Reason::SharedExtents);
}

TEST_F(FreedByDiskTest, OfCompressedExtentsNothingIsCertain)
{
    m_facts.extents[add()].bytes = {0, 90, 70};
    expectKept(20, 100, Reason::Compressed);
}

TEST_F(FreedByDiskTest, AFileMayBeKeptByTwoReasons)
{
    m_facts.extents[add()].bytes = {10, 90, 70};
    const FreedSpace space = freed();
    EXPECT_EQ(space.least, 20U);
    EXPECT_THAT(
        space.kept,
        ElementsAre(
            KeptFiles{Reason::SharedExtents, 1, "/t/0", {}},
            KeptFiles{Reason::Compressed, 1, "/t/0", {}}));
}

TEST_F(FreedByDiskTest, AFileThatIsOpenIsHeldByThoseWhoHoldIt)
{
    add(700);
    add(500);
    add(300);
    const FileHolder firefox{1234, "firefox"};
    m_facts.open.files.push_back({{1, 2}, 300, {{1, "init"}}});
    m_facts.open.files.push_back({{1, 1}, 500, {firefox}});
    m_facts.open.files.push_back({{2, 0}, 700, {firefox}}); // on another disk
    EXPECT_EQ(freed(), (FreedSpace{700, 1500, {{Reason::HeldOpen, 2, "/t/1", {firefox}}}, false}));
}

TEST_F(FreedByDiskTest, AFileWithANameThatWasNotChosenMayStay)
{
    m_facts.states[add(100, 2)].state.linkCount = 3;
    expectKept(0, 100, Reason::LinksOutsideScan);
}

TEST_F(FreedByDiskTest, AFileThatLostNamesSinceTheScanIsFreed)
{
    m_facts.states[add(100, 2)].state.linkCount = 1;
    m_question.byScan.kept = {{Reason::LinksOutsideScan, 1, "/t/0", {}}};
    EXPECT_EQ(freed(), (FreedSpace{100, 100, {}, false}));
}

TEST_F(FreedByDiskTest, WhatTheScanKnowsToStayStays)
{
    add();
    const KeptFiles elsewhere{Reason::LinksElsewhere, 3, "/t/link", {}};
    m_question.byScan.kept = {elsewhere};
    EXPECT_EQ(freed(), (FreedSpace{100, 100, {elsewhere}, false}));
}

TEST_F(FreedByDiskTest, WhatIsGoneMayFreeNothing)
{
    m_facts.states[add()] = {Outcome::Gone};
    expectKept(0, 100, Reason::Changed);
}

TEST_F(FreedByDiskTest, AFolderInItsPlaceIsAnotherItem)
{
    m_facts.states[add()].state.kind = ItemState::Kind::Folder;
    expectKept(0, 100, Reason::Changed);
}

TEST_F(FreedByDiskTest, WhatIsNotRegularHasNoExtents)
{
    m_facts.states[add()].state.kind = ItemState::Kind::SymbolicLink;
    m_facts.extents.clear();
    EXPECT_EQ(freed(), (FreedSpace{100, 100, {}, false}));
}

TEST_F(FreedByDiskTest, WithoutAnAnswerNothingIsCertain)
{
    add();
    m_facts.states.clear();
    expectKept(0, 100, Reason::NotLookedAt);
}

TEST_F(FreedByDiskTest, OneThatMayNotBeLookedAtCountsAsNotLookedAt)
{
    m_facts.states[add()] = {Outcome::MayNotLook};
    expectKept(0, 100, Reason::NotLookedAt);
}

class FreedWithUnknownExtentsTest : public FreedByDiskTest,
                                    public testing::WithParamInterface<std::pair<State, Reason>> {
};

TEST_P(FreedWithUnknownExtentsTest, NothingIsCertain)
{
    m_facts.extents[add()] = {GetParam().first, {}};
    expectKept(0, 100, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    States,
    FreedWithUnknownExtentsTest,
    testing::Values(
        std::pair{State::NotTold, Reason::NotTold},
        std::pair{State::MayNotRead, Reason::NotTold},
        std::pair{State::Changed, Reason::Changed},
        std::pair{State::NotLookedAt, Reason::NotLookedAt}));

TEST_F(FreedByDiskTest, WithoutAnAnswerAboutExtentsNothingIsCertain)
{
    add();
    m_facts.extents.clear();
    expectKept(0, 100, Reason::NotLookedAt);
}

TEST_F(FreedByDiskTest, FilesForWhichThereWasNoRoomMayFreeNothing)
{
    add(700);
    m_question.byScan.most += 50;
    m_question.otherFiles = 5;
    EXPECT_EQ(freed(), (FreedSpace{700, 750, {{Reason::NotLookedAt, 5, "", {}}}, false}));
}

TEST_F(FreedByDiskTest, OfThoseNotLookedAtTheLargestIsNamed)
{
    m_facts.states[add(700)] = {};
    m_question.otherFiles = 5;
    EXPECT_THAT(freed().kept, ElementsAre(KeptFiles{Reason::NotLookedAt, 6, "/t/0", {}}));
}

TEST_F(FreedByDiskTest, ProcessesThatCouldNotBeLookedAtAreTold)
{
    add();
    m_facts.open.unreadableProcesses = 1;
    EXPECT_EQ(freed(), (FreedSpace{100, 100, {}, true}));
}

} // namespace
} // namespace tessera
