// SPDX-License-Identifier: MIT
#include "Basket/ChosenStates.h"

#include "support/Fakes/FakeMainThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <mutex>
#include <semaphore>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Outcome = ItemAnswer::Outcome;
using Paths = std::vector<std::string>;

/// Answers each question when the test lets it. In the first one the states have inode 1, in the
/// second 2, but that of "/same" always has 1, and as many names. Nothing is at "/gone", nor at
/// "/leaving" after the first question; "/late" may not be looked at in that. Whoever waits for
/// what is in "/dead" gets no further.
class HeldItemStates final : public ItemStates {
public:
    std::vector<ItemAnswer> statesOf(
        const std::vector<std::string>& paths, const std::stop_token& stop) const override
    {
        const std::stop_callback onStop(stop, [this] { m_gate.release(); });
        m_gate.acquire();
        const std::lock_guard lock(m_mutex);
        m_questions.push_back(paths);
        std::vector<ItemAnswer> answers;
        for (const std::string& path : paths) {
            if (path.starts_with("/dead/")) {
                break;
            }
            answers.push_back(answerOf(path));
        }
        answers.resize(paths.size());
        return answers;
    }

    void letOneGo() { m_gate.release(); }

    std::vector<Paths> questions() const
    {
        const std::lock_guard lock(m_mutex);
        return m_questions;
    }

private:
    ItemAnswer answerOf(const std::string& path) const
    {
        const bool isFirst = m_questions.size() == 1;
        if (path == "/gone" || (path == "/leaving" && !isFirst)) {
            return {Outcome::Gone};
        }
        if (path == "/late" && isFirst) {
            return {Outcome::MayNotLook};
        }
        ItemState state;
        state.identity = {1, path == "/same" ? 1 : m_questions.size()};
        state.linkCount = m_questions.size();
        return {Outcome::Known, state};
    }

    mutable std::counting_semaphore<> m_gate{0};
    mutable std::mutex m_mutex; ///< guards what follows
    mutable std::vector<Paths> m_questions;
};

class ChosenStatesTest : public testing::Test {
protected:
    void awaitAnswers(int count)
    {
        const int wanted = m_told + count;
        for (int i = 0; i < count; ++i) {
            m_itemStates->letOneGo();
        }
        m_mainThread.runUntil([this, wanted] { return m_told == wanted; });
    }

    static Url place(const std::string& path) { return {path, false}; }

    const FileTime m_scanned{1000, 5};
    std::shared_ptr<HeldItemStates> m_itemStates = std::make_shared<HeldItemStates>();
    test::FakeMainThread m_mainThread;
    int m_told = 0;
    Paths m_lost;
    ChosenStates m_states{m_itemStates, m_mainThread, [this](const Paths& lost) {
                              ++m_told;
                              m_lost.insert(m_lost.end(), lost.begin(), lost.end());
                          }};
};

TEST_F(ChosenStatesTest, WhatWasChosenIsKnownOnceSomebodyHasLooked)
{
    m_states.lookAt(place("/a"), m_scanned);
    EXPECT_FALSE(m_states.expectedAt(place("/a")));
    EXPECT_FALSE(m_states.isComplete());
    awaitAnswers(1);
    const auto expected = m_states.expectedAt(place("/a"));
    ASSERT_TRUE(expected);
    EXPECT_EQ(expected->state.identity, (FileIdentity{1, 1}));
    EXPECT_EQ(expected->scanned, m_scanned);
    EXPECT_TRUE(m_states.isComplete());
}

TEST_F(ChosenStatesTest, WhatNobodyTellsIsNotKnown)
{
    m_states.lookAt(place("/gone"), m_scanned);
    awaitAnswers(1);
    EXPECT_FALSE(m_states.expectedAt(place("/gone")));
    EXPECT_FALSE(m_states.expectedAt(place("/never asked")));
    EXPECT_TRUE(m_states.isComplete());
    EXPECT_THAT(m_lost, IsEmpty()) << "nothing had been found there";
}

TEST_F(ChosenStatesTest, WhatIsChosenMeanwhileIsLookedAtTogether)
{
    for (const char* const path : {"/a", "/b", "/c"}) {
        m_states.lookAt(place(path), m_scanned);
    }
    awaitAnswers(2);
    EXPECT_THAT(m_itemStates->questions(), ElementsAre(Paths{"/a"}, Paths{"/b", "/c"}));
    EXPECT_TRUE(m_states.expectedAt(place("/c")));
}

TEST_F(ChosenStatesTest, AnAnswerToAnEarlierRequestIsNotTheLaterOnes)
{
    m_states.lookAt(place("/a"), m_scanned);
    m_states.lookAt(place("/a"), {2000, 0});
    awaitAnswers(1);
    EXPECT_FALSE(m_states.expectedAt(place("/a")));
    awaitAnswers(1);
    EXPECT_EQ(m_states.expectedAt(place("/a"))->state.identity.inode, 2U);
    EXPECT_EQ(m_states.expectedAt(place("/a"))->scanned, (FileTime{2000, 0}));
}

TEST_F(ChosenStatesTest, WhatIsForgottenStaysForgotten)
{
    m_states.lookAt(place("/a"), m_scanned);
    m_states.forget(place("/a"));
    awaitAnswers(1);
    EXPECT_FALSE(m_states.expectedAt(place("/a")));
}

TEST_F(ChosenStatesTest, TheSameItemIsExpectedAsItIsAtTheLastLook)
{
    m_states.lookAt(place("/same"), m_scanned);
    m_states.lookAgain(place("/same"), {2000, 0});
    awaitAnswers(1);
    EXPECT_EQ(m_states.expectedAt(place("/same"))->state.linkCount, 1U);
    EXPECT_EQ(m_states.expectedAt(place("/same"))->scanned, m_scanned);
    awaitAnswers(1);
    EXPECT_EQ(m_states.expectedAt(place("/same"))->state.linkCount, 2U);
    EXPECT_EQ(m_states.expectedAt(place("/same"))->scanned, (FileTime{2000, 0}));
    EXPECT_THAT(m_lost, IsEmpty());
}

TEST_F(ChosenStatesTest, AnEarlierScanTellsNothingNew)
{
    m_states.lookAt(place("/same"), m_scanned);
    m_states.lookAgain(place("/same"), {1, 0});
    awaitAnswers(2);
    EXPECT_EQ(m_states.expectedAt(place("/same"))->scanned, m_scanned);
}

TEST_F(ChosenStatesTest, AnotherItemInItsPlaceIsLost)
{
    m_states.lookAt(place("/a"), m_scanned);
    m_states.lookAgain(place("/a"), {2000, 0});
    awaitAnswers(1);
    EXPECT_THAT(m_lost, IsEmpty());
    awaitAnswers(1);
    EXPECT_THAT(m_lost, ElementsAre("/a"));
    EXPECT_FALSE(m_states.expectedAt(place("/a")));
}

TEST_F(ChosenStatesTest, WhatIsThereNoMoreIsLost)
{
    m_states.lookAt(place("/leaving"), m_scanned);
    m_states.lookAgain(place("/leaving"), {2000, 0});
    awaitAnswers(2);
    EXPECT_THAT(m_lost, ElementsAre("/leaving"));
}

TEST_F(ChosenStatesTest, WhatIsChosenAnewIsNotComparedWithWhatItWas)
{
    m_states.lookAt(place("/a"), m_scanned);
    awaitAnswers(1);
    m_states.lookAt(place("/a"), {2000, 0});
    awaitAnswers(1);
    EXPECT_EQ(m_states.expectedAt(place("/a"))->state.identity.inode, 2U);
    EXPECT_THAT(m_lost, IsEmpty());
}

TEST_F(ChosenStatesTest, WhatWasFirstSeenLaterCountsSinceItWasChosen)
{
    m_states.lookAt(place("/late"), m_scanned);
    awaitAnswers(1);
    EXPECT_FALSE(m_states.expectedAt(place("/late")));
    m_states.lookAgain(place("/late"), {2000, 0});
    awaitAnswers(1);
    EXPECT_EQ(m_states.expectedAt(place("/late"))->scanned, m_scanned);
}

TEST_F(ChosenStatesTest, WhatNobodyToldOfIsAskedForOnceMoreWhenThatIsWanted)
{
    m_states.lookAt(place("/late"), m_scanned);
    m_states.lookAt(place("/a"), m_scanned);
    awaitAnswers(2);
    m_states.lookAtUnknown();
    awaitAnswers(1);
    EXPECT_THAT(
        m_itemStates->questions(), ElementsAre(Paths{"/late"}, Paths{"/a"}, Paths{"/late"}));
    EXPECT_TRUE(m_states.expectedAt(place("/late")));
}

TEST_F(ChosenStatesTest, WhatIsBeingLookedAtIsNotAskedForOnceMore)
{
    m_states.lookAt(place("/a"), m_scanned);
    m_states.lookAtUnknown();
    awaitAnswers(1);
    EXPECT_TRUE(m_states.isComplete());
    EXPECT_TRUE(m_states.expectedAt(place("/a")));
}

TEST_F(ChosenStatesTest, WhereAllIsKnownNothingIsAskedForOnceMore)
{
    m_states.lookAt(place("/a"), m_scanned);
    awaitAnswers(1);
    m_states.lookAtUnknown();
    EXPECT_TRUE(m_states.isComplete());
}

TEST_F(ChosenStatesTest, WhatIsBehindAnItemThatGivesNoAnswerIsAskedForOnceMore)
{
    m_states.lookAt(place("/a"), m_scanned);
    for (const char* const path : {"/b", "/dead/1", "/dead/2", "/c", "/d"}) {
        m_states.lookAt(place(path), m_scanned);
    }
    awaitAnswers(3);
    EXPECT_FALSE(m_states.isComplete());
    awaitAnswers(1);
    EXPECT_THAT(
        m_itemStates->questions(),
        ElementsAre(
            Paths{"/a"},
            Paths{"/b", "/dead/1", "/dead/2", "/c", "/d"},
            Paths{"/c", "/d", "/dead/2", "/dead/1"},
            Paths{"/dead/1", "/dead/2"}));
    EXPECT_TRUE(m_states.isComplete());
    EXPECT_TRUE(m_states.expectedAt(place("/d")));
    EXPECT_FALSE(m_states.expectedAt(place("/dead/1")));
}

TEST_F(ChosenStatesTest, WhatWasForgottenMeanwhileIsNotAskedForOnceMore)
{
    m_states.lookAt(place("/dead/1"), m_scanned);
    m_states.forget(place("/dead/1"));
    awaitAnswers(1);
    EXPECT_TRUE(m_states.isComplete());
    EXPECT_EQ(m_itemStates->questions().size(), 1U);
}

TEST(ChosenStates, ItsEndStopsTheQuestion)
{
    const auto itemStates = std::make_shared<HeldItemStates>();
    test::FakeMainThread mainThread;
    {
        ChosenStates states(itemStates, mainThread);
        states.lookAt(Url("/a", false), {});
    }
    EXPECT_EQ(itemStates->questions().size(), 1U);
}

} // namespace
} // namespace tessera
