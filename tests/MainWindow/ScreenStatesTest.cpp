// SPDX-License-Identifier: MIT
#include "MainWindow/ScreenStates.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <set>
#include <utility>
#include <vector>

namespace tessera {

// GoogleTest finds it by its name.
// NOLINTNEXTLINE(readability-identifier-naming)
void PrintTo(const ScreenTransition& transition, std::ostream* stream)
{
    *stream << "state " << static_cast<int>(transition.next) << ", action "
            << static_cast<int>(transition.action);
}

namespace {

using State = ScreenState;
using Event = ScreenEvent;
using Action = ScreenAction;

constexpr ScreenTransition kIgnoredWhenStarting{State::Starting, Action::Ignore};
constexpr ScreenTransition kIgnoredAtHome{State::Home, Action::Ignore};
constexpr ScreenTransition kIgnoredWhenScanning{State::Scanning, Action::Ignore};
constexpr ScreenTransition kIgnoredWhenCancelling{State::Cancelling, Action::Ignore};
constexpr ScreenTransition kIgnoredAtTree{State::Tree, Action::Ignore};

struct Expectation {
    State state;
    Event event;
    ScreenTransition transition;
};

/// Every event in every state, those that must change nothing included.
const std::vector<Expectation> kEveryEventInEveryState{
    {State::Starting, Event::WindowLoaded, {State::Home, Action::ShowHome}},
    {State::Starting, Event::HomeSelected, kIgnoredWhenStarting},
    {State::Starting, Event::ScanUrl, kIgnoredWhenStarting},
    {State::Starting, Event::ScanCancelled, kIgnoredWhenStarting},
    {State::Starting, Event::ScanComplete, kIgnoredWhenStarting},
    {State::Starting, Event::CurrentFolderChanged, kIgnoredWhenStarting},
    {State::Starting, Event::CleanUpDue, kIgnoredWhenStarting},

    {State::Home, Event::WindowLoaded, kIgnoredAtHome},
    {State::Home, Event::HomeSelected, kIgnoredAtHome},
    {State::Home, Event::ScanUrl, {State::Scanning, Action::SlideScanIn}},
    {State::Home, Event::ScanCancelled, kIgnoredAtHome},
    {State::Home, Event::ScanComplete, kIgnoredAtHome},
    {State::Home, Event::CurrentFolderChanged, kIgnoredAtHome},
    {State::Home, Event::CleanUpDue, kIgnoredAtHome},

    {State::Scanning, Event::WindowLoaded, kIgnoredWhenScanning},
    {State::Scanning, Event::HomeSelected, kIgnoredWhenScanning},
    {State::Scanning, Event::ScanUrl, {State::Scanning, Action::ReplaceScan}},
    {State::Scanning, Event::ScanCancelled, {State::Cancelling, Action::SlideScanOut}},
    {State::Scanning, Event::ScanComplete, {State::Tree, Action::ShowTree}},
    {State::Scanning, Event::CurrentFolderChanged, kIgnoredWhenScanning},
    {State::Scanning, Event::CleanUpDue, kIgnoredWhenScanning},

    {State::Cancelling, Event::WindowLoaded, kIgnoredWhenCancelling},
    {State::Cancelling, Event::HomeSelected, kIgnoredWhenCancelling},
    {State::Cancelling, Event::ScanUrl, {State::Scanning, Action::SlideScanIn}},
    {State::Cancelling, Event::ScanCancelled, kIgnoredWhenCancelling},
    {State::Cancelling, Event::ScanComplete, {State::Tree, Action::ShowTree}},
    {State::Cancelling, Event::CurrentFolderChanged, kIgnoredWhenCancelling},
    {State::Cancelling, Event::CleanUpDue, {State::Home, Action::CleanUp}},

    {State::Tree, Event::WindowLoaded, kIgnoredAtTree},
    {State::Tree, Event::HomeSelected, {State::Home, Action::ShowHome}},
    {State::Tree, Event::ScanUrl, {State::Scanning, Action::ShowHomeAndSlideScanIn}},
    {State::Tree, Event::ScanCancelled, kIgnoredAtTree},
    {State::Tree, Event::ScanComplete, kIgnoredAtTree},
    {State::Tree, Event::CurrentFolderChanged, {State::Tree, Action::RefreshPath}},
    {State::Tree, Event::CleanUpDue, kIgnoredAtTree},
};

TEST(ScreenStates, EveryEventHasItsEffectInEveryState)
{
    for (const Expectation& expected : kEveryEventInEveryState) {
        EXPECT_EQ(screenTransition(expected.state, expected.event), expected.transition)
            << "state " << static_cast<int>(expected.state) << ", event "
            << static_cast<int>(expected.event);
    }
}

TEST(ScreenStates, TheTableAboveIsWhole)
{
    constexpr std::size_t kStates = static_cast<std::size_t>(State::Tree) + 1;
    constexpr std::size_t kEvents = static_cast<std::size_t>(Event::CleanUpDue) + 1;
    std::set<std::pair<State, Event>> seen;
    for (const Expectation& expected : kEveryEventInEveryState) {
        seen.emplace(expected.state, expected.event);
    }
    EXPECT_EQ(seen.size(), kStates * kEvents);
}

} // namespace
} // namespace tessera
