// SPDX-License-Identifier: MIT
#include "History/TrashRecord.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tessera {
namespace {

constexpr FileIdentity kItem{7, 11};

/// What the disk shows of the item: in the trash and where it was.
struct Shown {
    std::optional<bool> inTrash;
    std::optional<bool> whereItWas;
};

TrashRecord settledWith(TrashState state, const Shown& shown)
{
    TrashRecord record;
    record.item = {Url("/home/a", false), Url("/trash/a", false), kItem, 1};
    record.state = state;
    return settled(record, [shown](const Url& place, const TrashedItem& item) {
        EXPECT_EQ(item.identity, kItem);
        return place.path() == "/trash/a" ? shown.inTrash : shown.whereItWas;
    });
}

TEST(TrashRecord, AMoveThatWasCutOffCountsAsMovedWhenTheItemIsInTheTrash)
{
    EXPECT_EQ(settledWith(TrashState::Begun, {true, false}).state, TrashState::Moved);
}

TEST(TrashRecord, AMoveThatWasCutOffCountsAsNotMovedWhenTheItemIsWhereItWas)
{
    const TrashRecord record = settledWith(TrashState::Begun, {false, true});
    EXPECT_EQ(record.state, TrashState::NotMoved);
    EXPECT_TRUE(record.place.empty());
}

TEST(TrashRecord, AnItemThatIsNowhereIsGone)
{
    EXPECT_EQ(settledWith(TrashState::Begun, {false, false}).state, TrashState::Gone);
    EXPECT_EQ(settledWith(TrashState::Moved, {false, false}).state, TrashState::Gone);
}

TEST(TrashRecord, AnItemThatSomebodyRestoredCountsAsPutBackWhereItWas)
{
    const TrashRecord record = settledWith(TrashState::Moved, {false, true});
    EXPECT_EQ(record.state, TrashState::PutBack);
    EXPECT_EQ(record.place, Url("/home/a", false));
}

TEST(TrashRecord, AnItemThatWasAboutToBePutBackIsLookedForThereToo)
{
    for (const std::optional<bool> isThere : {std::optional(true), std::optional(false), {}}) {
        TrashRecord record;
        record.item = {Url("/home/a", false), Url("/trash/a", false), kItem, 1};
        record.state = TrashState::Moved;
        record.place = Url("/home/a 2", false);
        record = settled(record, [isThere](const Url& place, const TrashedItem& /*item*/) {
            return place.path() == "/home/a 2" ? isThere : std::optional(false);
        });
        EXPECT_EQ(
            record.state,
            !isThere       ? TrashState::Moved
                : *isThere ? TrashState::PutBack
                           : TrashState::Gone);
        EXPECT_EQ(record.place.path() == "/home/a 2", isThere != false);
    }
}

TEST(TrashRecord, AnItemThatWasNotPutBackAfterAllIsInTheTrash)
{
    TrashRecord record;
    record.item = {Url("/home/a", false), Url("/trash/a", false), kItem, 1};
    record.state = TrashState::Moved;
    record.place = Url("/home/a 2", false);
    record = settled(record, [](const Url& /*place*/, const TrashedItem& /*item*/) {
        return std::optional(true);
    });
    EXPECT_EQ(record.state, TrashState::Moved);
    EXPECT_TRUE(record.place.empty());
}

TEST(TrashRecord, AnItemThatShowsAgainIsGoneNoMore)
{
    EXPECT_EQ(settledWith(TrashState::Gone, {true, false}).state, TrashState::Moved);
}

TEST(TrashRecord, AnItemWithANameInBothPlacesIsInTheTrash)
{
    EXPECT_EQ(settledWith(TrashState::Begun, {true, true}).state, TrashState::Moved);
}

TEST(TrashRecord, WhatNobodyCanTellStays)
{
    for (const TrashState state : {TrashState::Begun, TrashState::Moved, TrashState::Gone}) {
        EXPECT_EQ(settledWith(state, {std::nullopt, std::nullopt}).state, state);
        EXPECT_EQ(settledWith(state, {false, std::nullopt}).state, state);
        EXPECT_EQ(settledWith(state, {std::nullopt, false}).state, state);
    }
}

TEST(TrashRecord, WhatEndedOutsideTheTrashIsNotLookedFor)
{
    for (const TrashState state : {TrashState::NotMoved, TrashState::PutBack}) {
        EXPECT_EQ(settledWith(state, {true, true}).state, state);
    }
}

} // namespace
} // namespace tessera
