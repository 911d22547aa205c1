// SPDX-License-Identifier: MIT
// A program that moves several chosen items as one step, some of which have changed, and undoes and
// redoes the step is killed at any moment.
#include "KilledMovers.h"
#include "TrashedNow.h"
#include "support/Machine/BuiltPaths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

/// An item that moves, told by the text of a file.
struct MovingItem {
    std::string name;
    std::string text;
    std::string below = {}; ///< where the file is in it, for a folder
};

/// Names that stay, each with what may be found there.
struct StayingItem {
    std::array<std::string, 2> names;
    std::array<std::string, 2> texts;
    std::string below = {};
};

class TrashWithKilledBaskets : public KilledMovers {
protected:
    TrashWithKilledBaskets()
        : KilledMovers(built::basketMover())
    {
        for (const MovingItem& item : m_moving) {
            if (!item.below.empty()) {
                m_tree.makeFolder("work/" + item.name);
                m_tree.makeFolder("work/" + item.name + "/inside");
            }
            if (item.name != kSecondName && item.name != kLink) {
                m_tree.writeFile("work/" + item.name + item.below, item.text);
            }
        }
        m_tree.makeHardLink(std::string("work/") + kSecondName, std::string("work/") + kFirstName);
        m_tree.writeFile("target", "behind the link");
        m_tree.makeSymbolicLink(std::string("work/") + kLink, m_tree.pathOf("target"));
        makeWhatStays();
    }

    void makeWhatStays()
    {
        m_tree.writeFile("work/stays written", "written");
        m_tree.writeFile("work/stays linked", "linked");
        m_tree.makeHardLink("work/stays linked too", "work/stays linked");
        m_tree.writeFile("work/stays file", "file");
        m_tree.writeFile("work/stays other file", "other file");
        for (const char* const folder : {"work/stays folder", "work/stays other folder"}) {
            m_tree.makeFolder(folder);
            m_tree.writeFile(std::string(folder) + "/inside", folder);
        }
    }

    Whereabouts whereabouts(const MovingItem& item) const
    {
        return whereaboutsOf(placeOf(item.name), m_homeTrash, item.text, item.below);
    }

    std::string placeOf(const std::string& name) const { return m_tree.pathOf("work/" + name); }

    /// How many items are in the trash.
    int checkWhatMoves() const
    {
        int trashed = 0;
        for (const MovingItem& item : m_moving) {
            const Whereabouts found = whereabouts(item);
            EXPECT_TRUE(found == Whereabouts::InItsPlace || found == Whereabouts::InTheTrash)
                << item.name << ": " << static_cast<int>(found);
            trashed += found == Whereabouts::InTheTrash ? 1 : 0;
        }
        return trashed;
    }

    void checkWhatStays() const
    {
        for (const StayingItem& item : m_staying) {
            const std::array<std::string, 2> found{
                fileContent(placeOf(item.names[0]) + item.below),
                fileContent(placeOf(item.names[1]) + item.below)};
            EXPECT_TRUE(std::ranges::is_permutation(found, item.texts)) << item.names[0];
        }
        for (const std::string& name : namesIn(m_homeTrash + "/files")) {
            EXPECT_FALSE(name.starts_with("stays ")) << name;
        }
    }

    /// Where the item is; its name in the trash may have got a number.
    std::string pathNow(const std::string& name) const
    {
        if (exists(placeOf(name))) {
            return placeOf(name);
        }
        const std::vector<std::string> inTrash = namesIn(m_homeTrash + "/files");
        const auto found = std::ranges::find_if(
            inTrash, [&name](const std::string& other) { return other.starts_with(name); });
        return m_homeTrash + "/files/" + (found == inTrash.end() ? name : *found);
    }

    void checkNamesOfOneFile() const
    {
        EXPECT_EQ(identityAt(pathNow(kFirstName)), identityAt(pathNow(kSecondName)));
        EXPECT_EQ(identityAt(placeOf("stays linked")), identityAt(placeOf("stays linked too")));
    }

    /// The newest entry of each place tells where the item is, and what stays has none.
    void checkEntries() const
    {
        const std::vector<TrashRecord> records = m_journal->records();
        for (const MovingItem& item : m_moving) {
            const auto newest
                = std::ranges::find(records, placeOf(item.name), [](const TrashRecord& record) {
                      return record.item.from.path();
                  });
            if (newest == records.end()) {
                EXPECT_EQ(whereabouts(item), Whereabouts::InItsPlace) << item.name;
                continue;
            }
            const bool isInTrash = settled(*newest, isItemOnDiskAt).state == TrashState::Moved;
            EXPECT_EQ(isInTrash, whereabouts(item) == Whereabouts::InTheTrash) << item.name;
        }
        EXPECT_TRUE(std::ranges::none_of(records, [](const TrashRecord& record) {
            return record.item.from.lastPathComponent().starts_with("stays ");
        }));
    }

    void killAndCheck(int rounds) const
    {
        std::minstd_rand random(kSeed);
        int inTheTrash = 0;
        int halfWay = 0;
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            SCOPED_TRACE(round);
            killMovers(1, random);
            const int trashed = checkWhatMoves();
            inTheTrash += trashed;
            halfWay += trashed > 0 && trashed < std::ssize(m_moving) ? 1 : 0;
            checkWhatStays();
            checkNamesOfOneFile();
            checkJournal();
            checkEntries();
        }
        EXPECT_GT(halfWay, 0) << "no round ended in the middle of a step";
        RecordProperty("itemsFoundInTheTrash", inTheTrash);
        RecordProperty("roundsInTheMiddle", halfWay);
    }

    static constexpr unsigned kSeed = 20'261'123;
    static constexpr const char* kFirstName = "first name";
    static constexpr const char* kSecondName = "second name";
    static constexpr const char* kLink = "link";

    const std::vector<MovingItem> m_moving{
        {"a", "item a"},
        {"b", "item b"},
        {"c", "item c"},
        {"folder", "in the folder", "/inside/file"},
        {"other folder", "in the other folder", "/inside/file"},
        {kFirstName, "of two names"},
        {kSecondName, "of two names"},
        {kLink, "behind the link"}};
    const std::vector<StayingItem> m_staying{
        {{"stays written", "stays linked"}, {"written", "linked"}},
        {{"stays file", "stays other file"}, {"file", "other file"}},
        {{"stays folder", "stays other folder"},
         {"work/stays folder", "work/stays other folder"},
         "/inside"}};
};

TEST_F(TrashWithKilledBaskets, EveryItemIsInItsPlaceOrCanBeRestoredAndWhatChangedStays)
{
    killAndCheck(kRounds);
}

using NightlyTrashWithKilledBaskets = TrashWithKilledBaskets;

TEST_F(NightlyTrashWithKilledBaskets, EveryItemIsInItsPlaceOrCanBeRestoredAndWhatChangedStays)
{
    killAndCheck(kNightlyRounds);
}

} // namespace
} // namespace tessera::test
