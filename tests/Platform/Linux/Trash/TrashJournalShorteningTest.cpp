// SPDX-License-Identifier: MIT
#include "History/TrashJournalText.h"
#include "Platform/Linux/Trash/TrashJournalFile.h"
#include "PutBackFixture.h"
#include "support/Machine/Meanwhile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::string linesOf(std::uint64_t first, std::uint64_t last)
{
    std::string lines;
    for (std::uint64_t number = first; number <= last; ++number) {
        TrashRecord record;
        record.item = {Url("/home/a", false), Url("/trash/files/a", false), {1, 2}, number};
        lines += trashBeginningLine(record) + trashStateLine(number, TrashState::Moved);
    }
    return lines;
}

class TrashJournalShortening : public PutBackFixture {
protected:
    void write(const std::string& lines) const
    {
        EXPECT_EQ(appendToTrashJournal(m_stateHome, lines, Durability::Later), 0);
    }

    const std::string m_path = trashJournalPath(m_stateHome);
};

TEST_F(TrashJournalShortening, TheNewestMovesStayWithTheirStates)
{
    write(linesOf(1, 1200));
    m_journal->shorten();
    EXPECT_EQ(journalText(), linesOf(201, 1200));
    struct stat values { };
    ASSERT_EQ(::lstat(m_path.c_str(), &values), 0);
    EXPECT_EQ(values.st_mode, S_IFREG | 0600U);
    EXPECT_THAT(namesIn(m_stateHome + "/tessera"), ElementsAre("trash-journal"));
}

TEST_F(TrashJournalShortening, AJournalThatIsShortEnoughIsNotTouched)
{
    write(linesOf(1, 1000));
    const std::vector<std::string> before = snapshotOf(m_stateHome);
    m_journal->shorten();
    EXPECT_EQ(snapshotOf(m_stateHome), before);
}

TEST_F(TrashJournalShortening, WithoutAJournalNothingIsMade)
{
    m_journal->shorten();
    EXPECT_FALSE(exists(m_stateHome));
}

TEST_F(TrashJournalShortening, AHundredMegabytesOfZerosGo)
{
    write(linesOf(1, 3));
    std::filesystem::resize_file(m_path, 100'000'000);
    write(linesOf(4, 6));
    EXPECT_THAT(m_journal->records(), SizeIs(testing::Ge(3)));
    m_journal->shorten();
    EXPECT_EQ(journalText(), linesOf(4, 6));
}

TEST_F(TrashJournalShortening, GarbageInBetweenGoesAndNoMoveWithIt)
{
    write(linesOf(1, 3));
    write(std::string(1'000'000, 'x') + '\n');
    write(linesOf(4, 6));
    m_journal->shorten();
    EXPECT_EQ(journalText(), linesOf(1, 6));
}

TEST_F(TrashJournalShortening, WhatABrokenOffShorteningLeftIsReplaced)
{
    write(linesOf(1, 1001));
    m_tree.writeFile("state/tessera/trash-journal.new", "half");
    m_journal->shorten();
    EXPECT_EQ(journalText(), linesOf(2, 1001));
    EXPECT_THAT(namesIn(m_stateHome + "/tessera"), ElementsAre("trash-journal"));
}

TEST_F(TrashJournalShortening, NothingElseInItsWayIsRemoved)
{
    write(linesOf(1, 1001));
    m_tree.writeFile("state/victim", "content");
    m_tree.makeSymbolicLink("state/tessera/trash-journal.new", m_stateHome + "/victim");
    const std::vector<std::string> before = snapshotOf(m_stateHome);
    m_journal->shorten();
    EXPECT_EQ(snapshotOf(m_stateHome), before);
}

TEST_F(TrashJournalShortening, WhatTakesTheJournalsPlaceMeanwhileIsNotReplaced)
{
    write(linesOf(1, 1001));
    const Meanwhile other(Call::Sync, [this] {
        std::filesystem::rename(m_path, m_path + ".old");
        m_tree.writeFile("state/tessera/trash-journal", "another's");
    });
    m_journal->shorten();
    EXPECT_EQ(journalText(), "another's");
    EXPECT_THAT(
        namesIn(m_stateHome + "/tessera"), ElementsAre("trash-journal", "trash-journal.old"));
}

TEST_F(TrashJournalShortening, AJournalThatWasReplacedIsWrittenToInItsNewPlace)
{
    write(linesOf(1, 1001));
    m_journal->shorten();
    write(linesOf(1002, 1002));
    EXPECT_EQ(journalText(), linesOf(2, 1002));
}

} // namespace
} // namespace tessera::test
