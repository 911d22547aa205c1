// SPDX-License-Identifier: MIT
// A program that moves items is killed at any moment.
#include "KilledMovers.h"
#include "TrashedNow.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/RunProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::AnyOf;
using testing::HasSubstr;

constexpr int kItems = 20;

class TrashWithKilledMovers : public KilledMovers {
protected:
    TrashWithKilledMovers()
        : KilledMovers(built::trashMover(), {std::to_string(kItems)})
    {
        for (int i = 0; i < kItems; ++i) {
            m_tree.writeFile("work/" + std::to_string(i), textOf(i));
        }
    }

    static std::string textOf(int item) { return "item " + std::to_string(item); }

    /// The places that an item goes back to in turn.
    std::array<std::string, 2> placesOf(int item) const
    {
        const std::string place = m_tree.pathOf("work/" + std::to_string(item));
        return {place, place + " b"};
    }

    /// What the newest entry of the item at that place has to tell.
    static void checkNewestEntry(const std::string& place, const std::vector<TrashRecord>& records)
    {
        const FileIdentity identity = identityAt(place);
        const auto newest = std::ranges::find(
            records, identity, [](const TrashRecord& record) { return record.item.identity; });
        if (newest == records.end()) {
            return;
        }
        const TrashRecord told = settled(*newest, isItemOnDiskAt);
        const bool isNotMoved = told.state == TrashState::NotMoved;
        EXPECT_TRUE(isNotMoved || told.state == TrashState::PutBack) << place;
        EXPECT_EQ((isNotMoved ? told.item.from : told.place).path(), place);
    }

    void checkEntries() const
    {
        const std::vector<TrashRecord> records = m_journal->records();
        for (int i = 0; i < kItems; ++i) {
            for (const std::string& place : placesOf(i)) {
                if (exists(place)) {
                    checkNewestEntry(place, records);
                }
            }
        }
    }

    Whereabouts whereaboutsOfItem(int item) const
    {
        Whereabouts found = Whereabouts::Lost;
        for (const std::string& place : placesOf(item)) {
            const Whereabouts here = whereaboutsOf(place, m_homeTrash, textOf(item));
            if (here != Whereabouts::Lost) {
                found = found == Whereabouts::Lost ? here : Whereabouts::Twice;
            }
        }
        return found;
    }

    /// How many items are in the trash.
    int checkItems() const
    {
        int trashed = 0;
        for (int i = 0; i < kItems; ++i) {
            const Whereabouts found = whereaboutsOfItem(i);
            EXPECT_TRUE(found == Whereabouts::InItsPlace || found == Whereabouts::InTheTrash)
                << i << ": " << static_cast<int>(found);
            trashed += found == Whereabouts::InTheTrash ? 1 : 0;
        }
        return trashed;
    }

    void killAndCheck(int rounds) const
    {
        std::minstd_rand random(20'261'122);
        int inTheTrash = 0;
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            SCOPED_TRACE(round);
            killMovers(1, random);
            inTheTrash += checkItems();
            checkJournal();
            checkEntries();
        }
        EXPECT_GT(inTheTrash, 0) << "no round ended while something was in the trash";
        RecordProperty("itemsFoundInTheTrash", inTheTrash);
    }
};

TEST_F(TrashWithKilledMovers, EveryItemIsInItsPlaceOrCanBeRestored)
{
    killAndCheck(kRounds);
}

using NightlyTrashWithKilledMovers = TrashWithKilledMovers;

TEST_F(NightlyTrashWithKilledMovers, EveryItemIsInItsPlaceOrCanBeRestored)
{
    killAndCheck(kNightlyRounds);
}

TEST_F(TrashWithKilledMovers, TwoThatMoveTheSameItemsLoseNone)
{
    constexpr int kRoundsOfTwo = 20;
    std::minstd_rand random(2'026);
    for (int round = 0; round < kRoundsOfTwo && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        killMovers(2, random);
        checkItems();
        checkJournal();
    }
}

TEST_F(TrashWithKilledMovers, AnotherProgramListsWhatIsLeftInTheTrash)
{
    std::minstd_rand random(1122);
    int inTheTrash = 0;
    while (inTheTrash == 0 && !HasFailure()) {
        killMovers(1, random);
        inTheTrash = checkItems();
    }
    const std::string listed = runProgram(
                                   "/usr/bin/trash-list",
                                   {},
                                   {"XDG_DATA_HOME=" + m_tree.pathOf("home/.local/share"),
                                    "HOME=" + m_tree.pathOf("home"),
                                    "LC_ALL=C.UTF-8"})
                                   .standardOutput;
    for (int i = 0; i < kItems; ++i) {
        if (whereaboutsOfItem(i) == Whereabouts::InTheTrash) {
            const std::string place = ' ' + m_tree.pathOf("work/" + std::to_string(i));
            EXPECT_THAT(listed, AnyOf(HasSubstr(place + '\n'), HasSubstr(place + " b\n")));
        }
    }
}

} // namespace
} // namespace tessera::test
