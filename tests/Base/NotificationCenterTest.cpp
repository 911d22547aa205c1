// SPDX-License-Identifier: MIT
#include "Base/NotificationCenter.h"

#include "Model/Document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tessera {
namespace {

TEST(NotificationCenter, CallsTheObserversOfTheNameInOrderBeforePostReturns)
{
    NotificationCenter center;
    std::vector<int> calls;
    const Observation first = center.addObserver("Scan", [&](const auto&) { calls.push_back(1); });
    const Observation other = center.addObserver("Stop", [&](const auto&) { calls.push_back(2); });
    const Observation third = center.addObserver("Scan", [&](const auto&) { calls.push_back(3); });
    center.post("Scan");
    EXPECT_THAT(calls, testing::ElementsAre(1, 3));
}

TEST(NotificationCenter, HandsOverTheObject)
{
    NotificationCenter center;
    std::vector<NotificationObject> objects;
    const Observation observation
        = center.addObserver("Scan", [&](const auto& object) { objects.push_back(object); });
    const auto node = makeNode<Document>("a");
    center.post("Scan", Url("/home", true));
    center.post("Scan", static_cast<File*>(node.get()));
    center.post("Scan");
    EXPECT_THAT(
        objects,
        testing::ElementsAre(
            NotificationObject(Url("/home", true)),
            NotificationObject(static_cast<File*>(node.get())),
            NotificationObject()));
}

TEST(NotificationCenter, AnEndedObservationIsCalledNoMore)
{
    NotificationCenter center;
    int calls = 0;
    {
        const Observation observation = center.addObserver("Scan", [&](const auto&) { ++calls; });
        center.post("Scan");
    }
    center.post("Scan");
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, AnObserverMayEndItsOwnObservation)
{
    NotificationCenter center;
    std::vector<std::string> calls;
    std::optional<Observation> own;
    const std::string name = "a name too long to be kept inside of the closure itself";
    own = center.addObserver("Scan", [&own, &calls, name](const auto&) {
        own.reset();
        calls.push_back(name);
    });
    center.post("Scan");
    center.post("Scan");
    EXPECT_THAT(calls, testing::ElementsAre(name));
}

TEST(NotificationCenter, AnObservationEndedByAnEarlierObserverIsNotCalled)
{
    NotificationCenter center;
    int calls = 0;
    std::optional<Observation> second;
    const Observation first = center.addObserver("Scan", [&](const auto&) { second.reset(); });
    second = center.addObserver("Scan", [&](const auto&) { ++calls; });
    center.post("Scan");
    EXPECT_EQ(calls, 0);
}

TEST(NotificationCenter, AnObserverAddedDuringAPostHearsTheNextOne)
{
    NotificationCenter center;
    int calls = 0;
    std::vector<Observation> added;
    const Observation first = center.addObserver("Scan", [&](const auto&) {
        added.push_back(center.addObserver("Scan", [&](const auto&) { ++calls; }));
    });
    center.post("Scan");
    EXPECT_EQ(calls, 0);
    center.post("Scan");
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, AnObservationMayOutliveTheCentre)
{
    std::optional<NotificationCenter> center(std::in_place);
    int calls = 0;
    Observation observation = center->addObserver("Scan", [&](const auto&) { ++calls; });
    center.reset();
    observation = Observation();
    EXPECT_EQ(calls, 0);
}

TEST(NotificationCenter, TheDefaultOneIsAlwaysTheSame)
{
    int calls = 0;
    const Observation observation
        = NotificationCenter::defaultCenter().addObserver("Scan", [&](const auto&) { ++calls; });
    NotificationCenter::defaultCenter().post("Scan");
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace tessera
