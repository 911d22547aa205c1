// SPDX-License-Identifier: MIT
#include "Compress/OriginalCheck.h"

#include "support/Fakes/FakeItemChanges.h"
#include "support/Fakes/FakeItemStates.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

using Outcome = OriginalCheck::Outcome;

class OriginalCheckTest : public testing::Test {
protected:
    OriginalCheckTest()
    {
        state("/X", {1, 7});
        state("/X.zip", {1, 8});
    }

    void state(const std::string& path, const FileIdentity& identity)
    {
        ItemAnswer answer{ItemAnswer::Outcome::Known, {}};
        answer.state.identity = identity;
        states.setAnswer(path, answer);
    }

    OriginalCheck check() const { return checkOriginal(archived, changes, states, {}); }

    const ArchivedItem archived{"/X", "/X.zip", {1, 8}, {100, 5}};
    test::FakeItemChanges changes;
    test::FakeItemStates states;
};

TEST_F(OriginalCheckTest, TheOriginalOfAWholeArchiveIsTheSameUntilItChanges)
{
    EXPECT_EQ(check().outcome, Outcome::Same);
    EXPECT_EQ(check().state.identity, (FileIdentity{1, 7}));
    EXPECT_EQ(changes.askedFor(), "/X");
    EXPECT_EQ(changes.askedSince(), (FileTime{100, 5}));
    changes.answer = ItemChanges::Answer::Some;
    EXPECT_EQ(check().outcome, Outcome::Changed);
}

TEST_F(OriginalCheckTest, WithoutItsArchiveTheOriginalIsNotToBeMoved)
{
    states.setAnswer("/X.zip", {ItemAnswer::Outcome::Gone, {}});
    EXPECT_EQ(check().outcome, Outcome::ArchiveGone);
    state("/X.zip", {1, 9});
    EXPECT_EQ(check().outcome, Outcome::ArchiveGone);
}

TEST_F(OriginalCheckTest, TheOriginalMayBeGone)
{
    changes.answer = ItemChanges::Answer::Gone;
    EXPECT_EQ(check().outcome, Outcome::Gone);
    changes.answer = ItemChanges::Answer::None;
    states.setAnswer("/X", {ItemAnswer::Outcome::Gone, {}});
    EXPECT_EQ(check().outcome, Outcome::Gone);
}

TEST_F(OriginalCheckTest, WhatNobodyCanLookAtMayHaveChanged)
{
    states.setAnswer("/X", {ItemAnswer::Outcome::NotLookedAt, {}});
    EXPECT_EQ(check().outcome, Outcome::Changed);
}

} // namespace
} // namespace tessera
