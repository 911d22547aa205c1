// SPDX-License-Identifier: MIT
#include "Base/Observation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

TEST(ObserverList, CallsTheObserversInOrderBeforeNotifyReturns)
{
    ObserverList<int> list;
    std::vector<int> calls;
    const Observation first = list.add([&](int value) { calls.push_back(value + 1); });
    const Observation second = list.add([&](int value) { calls.push_back(value + 2); });
    list.notify(10);
    EXPECT_THAT(calls, testing::ElementsAre(11, 12));
}

TEST(ObserverList, AnEndedObservationIsCalledNoMore)
{
    ObserverList<> list;
    int calls = 0;
    {
        const Observation observation = list.add([&] { ++calls; });
        list.notify();
    }
    list.notify();
    EXPECT_EQ(calls, 1);
}

TEST(ObserverList, AnObserverMayEndItsOwnObservation)
{
    ObserverList<> list;
    std::vector<std::string> calls;
    std::optional<Observation> own;
    const std::string name = "a name too long to be kept inside of the closure itself";
    own = list.add([&own, &calls, name] {
        own.reset();
        calls.push_back(name);
    });
    list.notify();
    list.notify();
    EXPECT_THAT(calls, testing::ElementsAre(name));
}

TEST(ObserverList, AnObservationEndedByAnEarlierObserverIsNotCalled)
{
    ObserverList<> list;
    int calls = 0;
    std::optional<Observation> second;
    const Observation first = list.add([&] { second.reset(); });
    second = list.add([&] { ++calls; });
    list.notify();
    EXPECT_EQ(calls, 0);
}

TEST(ObserverList, AnObserverAddedDuringACallHearsTheNextOne)
{
    ObserverList<> list;
    int calls = 0;
    std::vector<Observation> added;
    const Observation first = list.add([&] { added.push_back(list.add([&] { ++calls; })); });
    list.notify();
    EXPECT_EQ(calls, 0);
    list.notify();
    EXPECT_EQ(calls, 1);
}

TEST(ObserverList, AnObservationMayOutliveTheList)
{
    std::optional<ObserverList<>> list(std::in_place);
    int calls = 0;
    Observation observation = list->add([&] { ++calls; });
    list.reset();
    observation = Observation();
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace tessera
