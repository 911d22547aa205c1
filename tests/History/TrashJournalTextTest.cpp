// SPDX-License-Identifier: MIT
#include "History/TrashJournalText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace tessera {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr std::int64_t kTime = 1'795'347'571; // date -u -d 2026-11-22T11:39:31Z +%s

TrashRecord record(std::uint64_t number, const std::string& name = "a")
{
    TrashRecord record;
    record.item
        = {Url("/home/" + name, false),
           Url("/home/.local/share/Trash/files/" + name, false),
           {2049, 1234},
           number,
           1'795'347'571'000'000'007};
    record.time = kTime;
    record.bytes = 4096;
    return record;
}

TrashJournalReader readerOf(std::string_view text)
{
    TrashJournalReader reader;
    reader.feed(text);
    return reader;
}

std::deque<TrashRecord> recordsIn(std::string_view text)
{
    return readerOf(text).records();
}

TEST(TrashJournalText, AMoveIsALineThatAnybodyCanRead)
{
    EXPECT_EQ(
        trashBeginningLine(record(17, "a b")),
        "trash 17 2026-11-22T11:39:31Z 4096 2049 1234 1795347571000000007 "
        "file:///home/a%20b file:///home/.local/share/Trash/files/a%20b .\n");
}

TEST(TrashJournalText, WhatFollowsIsALineOfItsOwn)
{
    EXPECT_EQ(trashStateLine(17, TrashState::Moved), "moved 17 .\n");
    EXPECT_EQ(trashStateLine(17, TrashState::NotMoved), "stayed 17 .\n");
    EXPECT_EQ(trashStateLine(17, TrashState::Gone), "gone 17 .\n");
    EXPECT_EQ(
        trashStateLine(17, TrashState::PutBack, Url("/home/a 2", true)),
        "back 17 file:///home/a%202/ .\n");
    EXPECT_EQ(trashStateLine(17, TrashState::Begun), "");
}

TEST(TrashJournalText, AnItemThatIsAboutToBePutBackHasALineThatSaysWhere)
{
    TrashRecord wanted = record(17);
    wanted.state = TrashState::Moved;
    wanted.place = Url("/home/a 2", false);
    const std::string line = trashStateLine(17, TrashState::Moved, wanted.place);
    EXPECT_EQ(line, "returning 17 file:///home/a%202 .\n");
    EXPECT_THAT(recordsIn(trashBeginningLine(wanted) + line), testing::ElementsAre(wanted));
}

TEST(TrashJournalText, WhatIsWrittenIsReadAgain)
{
    for (TrashRecord wanted :
         {record(1), record(~0ULL, "\xFF\n\r %00\x01"), record(3, "\xC3\xBC/x")}) {
        for (const TrashState state :
             {TrashState::Begun,
              TrashState::Moved,
              TrashState::NotMoved,
              TrashState::PutBack,
              TrashState::Gone}) {
            wanted.state = state;
            wanted.place = state == TrashState::PutBack ? Url("/else where", true) : Url();
            EXPECT_THAT(
                recordsIn(
                    trashBeginningLine(wanted)
                    + trashStateLine(wanted.item.number, state, wanted.place)),
                testing::ElementsAre(wanted));
        }
    }
}

TEST(TrashJournalText, AnUnknownSizeIsReadAgain)
{
    TrashRecord wanted = record(1);
    wanted.bytes = std::nullopt;
    EXPECT_THAT(recordsIn(trashBeginningLine(wanted)), testing::ElementsAre(wanted));
}

TEST(TrashJournalText, AnUnknownTimeOfBirthIsReadAgain)
{
    TrashRecord wanted = record(1);
    wanted.item.birth = std::nullopt;
    EXPECT_THAT(recordsIn(trashBeginningLine(wanted)), testing::ElementsAre(wanted));
}

TEST(TrashJournalText, TimesAreKeptToTheSecond)
{
    // The last second of a leap day, the first one of all, and the last with four digits.
    for (const std::int64_t time : {1'709'251'199LL, 0LL, 253'402'300'799LL}) {
        TrashRecord wanted = record(1);
        wanted.time = time;
        EXPECT_THAT(recordsIn(trashBeginningLine(wanted)), testing::ElementsAre(wanted));
    }
}

TEST(TrashJournalText, ALineThatIsCutOffAnywhereCountsForNothing)
{
    const std::string line = trashBeginningLine(record(1));
    for (std::size_t length = 0; length < line.size() - 1; ++length) {
        EXPECT_THAT(recordsIn(line.substr(0, length)), IsEmpty()) << length;
        EXPECT_THAT(recordsIn(line.substr(0, length) + '\n'), IsEmpty()) << length;
    }
}

TEST(TrashJournalText, AStateThatIsCutOffAnywhereCountsForNothing)
{
    const std::string text = trashBeginningLine(record(12)) + trashBeginningLine(record(1));
    const std::string state = trashStateLine(12, TrashState::PutBack, Url("/home/a b", false));
    for (std::size_t length = 0; length < state.size() - 1; ++length) {
        for (const TrashRecord& found : recordsIn(text + state.substr(0, length) + '\n')) {
            EXPECT_EQ(found.state, TrashState::Begun) << length;
        }
    }
}

TEST(TrashJournalText, OtherLinesAndZerosArePassedOver)
{
    const std::string garbage
        = std::string(3, '\0') + "\n\n  \nnote 17 of a later version .\n\xFF\n";
    EXPECT_THAT(
        recordsIn(
            garbage + trashBeginningLine(record(1)) + garbage + trashStateLine(1, TrashState::Moved)
            + garbage),
        testing::ElementsAre(testing::Field(&TrashRecord::state, TrashState::Moved)));
}

TEST(TrashJournalText, ALineWithOneWrongWordCountsForNothing)
{
    const std::string right = trashBeginningLine(record(17));
    for (const auto& [word, wrong] : std::initializer_list<std::pair<const char*, const char*>>{
             {"trash", "Trash"},
             {"17", "0"},
             {"17", "-17"},
             {"17", "18446744073709551616"},
             {"2026-11-22", "2026-02-30"},
             {"T11:39:31Z", " 11:39:31Z"},
             {"Z ", " "},
             {"4096", ""},
             {"4096", "4096.5"},
             {"2049", "-"},
             {"1234", "x"},
             {"1795347571000000007", "early"},
             {"file:///home/a ", "/home/a "},
             {"file:///home/a ", "file:///home/a%00b "},
             {"file:///home/a ", "file:///home/a%2 "}}) {
        std::string line = right;
        line.replace(line.find(word), std::string_view(word).size(), wrong);
        EXPECT_THAT(recordsIn(line), IsEmpty()) << line;
    }
}

TEST(TrashJournalText, AStateIsAboutTheLastMoveOfItsNumber)
{
    const auto records = recordsIn(
        trashBeginningLine(record(5, "first")) + trashStateLine(5, TrashState::Gone)
        + trashBeginningLine(record(5, "second")) + trashStateLine(5, TrashState::Moved));
    ASSERT_THAT(records, SizeIs(2));
    EXPECT_EQ(records[0].state, TrashState::Gone);
    EXPECT_EQ(records[1].state, TrashState::Moved);
}

TEST(TrashJournalText, OfSeveralStatesTheLastCounts)
{
    const auto records = recordsIn(
        trashBeginningLine(record(5)) + trashStateLine(5, TrashState::Moved)
        + trashStateLine(5, TrashState::PutBack, Url("/b", false))
        + trashStateLine(5, TrashState::Moved));
    ASSERT_THAT(records, SizeIs(1));
    EXPECT_EQ(records[0].state, TrashState::Moved);
    EXPECT_TRUE(records[0].place.empty());
}

TEST(TrashJournalText, AStateWithoutAMoveCountsForNothing)
{
    EXPECT_THAT(recordsIn(trashStateLine(5, TrashState::Moved)), IsEmpty());
}

TEST(TrashJournalText, OnlyTheNewestMovesAreKept)
{
    TrashJournalReader reader;
    for (std::uint64_t number = 1; number <= kMostTrashRecords; ++number) {
        reader.feed(trashBeginningLine(record(number)));
    }
    EXPECT_FALSE(reader.isWasteful());
    reader.feed(trashBeginningLine(record(kMostTrashRecords + 1)));
    EXPECT_TRUE(reader.isWasteful());
    // The one that was dropped takes no state any more, and no other one gets it.
    reader.feed(trashStateLine(1, TrashState::Gone) + trashStateLine(2, TrashState::Moved));
    ASSERT_THAT(reader.records(), SizeIs(1000));
    EXPECT_EQ(reader.records().front().item.number, 2U);
    EXPECT_EQ(reader.records().front().state, TrashState::Moved);
    EXPECT_EQ(reader.records().back().state, TrashState::Begun);
}

TEST(TrashJournalText, ANumberThatCameAgainOutlivesTheFirstMoveOfItsOwn)
{
    TrashJournalReader reader;
    reader.feed(trashBeginningLine(record(7, "first")));
    for (std::uint64_t i = 1; i < kMostTrashRecords; ++i) {
        reader.feed(trashBeginningLine(record(i == 500 ? 7 : i + 1000)));
    }
    reader.feed(trashBeginningLine(record(1)) + trashStateLine(7, TrashState::Moved));
    EXPECT_EQ(reader.records().at(499).item.number, 7U);
    EXPECT_EQ(reader.records().at(499).state, TrashState::Moved);
}

TEST(TrashJournalText, PiecesOfAnyLengthMakeTheSameRecords)
{
    const std::string text = trashBeginningLine(record(1)) + trashStateLine(1, TrashState::Moved)
        + trashBeginningLine(record(2));
    for (std::size_t length = 1; length < text.size(); ++length) {
        TrashJournalReader reader;
        for (std::size_t start = 0; start < text.size(); start += length) {
            reader.feed(std::string_view(text).substr(start, length));
        }
        EXPECT_EQ(reader.records(), recordsIn(text)) << length;
    }
}

TEST(TrashJournalText, AHundredMegabytesOfOneLineArePassedOver)
{
    TrashJournalReader reader;
    reader.feed(trashBeginningLine(record(1)));
    const std::string garbage(1'000'000, 'x');
    for (int i = 0; i < 100; ++i) {
        reader.feed(garbage);
    }
    reader.feed('\n' + trashBeginningLine(record(2)));
    EXPECT_THAT(reader.records(), SizeIs(2));
    EXPECT_TRUE(reader.isWasteful());
}

TEST(TrashJournalText, ALineOfTheLongestPathsIsRead)
{
    const std::string longest(4095, '\xFF');
    TrashRecord wanted = record(1);
    wanted.item.from = Url('/' + longest, true);
    wanted.item.to = Url('/' + longest + std::string(255, '\xFE'), true);
    EXPECT_THAT(recordsIn(trashBeginningLine(wanted)), testing::ElementsAre(wanted));
}

} // namespace
} // namespace tessera
