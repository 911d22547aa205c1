// SPDX-License-Identifier: MIT
#include "MainWindow/ScreenStates.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

struct Row {
    ScreenState state;
    ScreenEvent event;
    ScreenTransition transition;
};

using State = ScreenState;
using Event = ScreenEvent;
using Action = ScreenAction;

constexpr std::array kRows{
    Row{State::Starting, Event::WindowLoaded, {State::Home, Action::ShowHome}},
    Row{State::Home, Event::ScanUrl, {State::Scanning, Action::SlideScanIn}},
    // Whoever asks for another folder meanwhile does not want the first one any more.
    Row{State::Scanning, Event::ScanUrl, {State::Scanning, Action::ReplaceScan}},
    Row{State::Scanning, Event::ScanCancelled, {State::Cancelling, Action::SlideScanOut}},
    Row{State::Scanning, Event::ScanComplete, {State::Tree, Action::ShowTree}},
    Row{State::Cancelling, Event::ScanUrl, {State::Scanning, Action::SlideScanIn}},
    // A scan may end in the very moment in which it is cancelled.
    Row{State::Cancelling, Event::ScanComplete, {State::Tree, Action::ShowTree}},
    Row{State::Cancelling, Event::CleanUpDue, {State::Home, Action::CleanUp}},
    Row{State::Tree, Event::HomeSelected, {State::Home, Action::ShowHome}},
    Row{State::Tree, Event::ScanUrl, {State::Scanning, Action::ShowHomeAndSlideScanIn}},
    Row{State::Tree, Event::CurrentFolderChanged, {State::Tree, Action::RefreshPath}},
};

} // namespace

ScreenTransition screenTransition(ScreenState state, ScreenEvent event)
{
    const auto* const found = std::find_if(kRows.begin(), kRows.end(), [&](const Row& row) {
        return row.state == state && row.event == event;
    });
    return found != kRows.end() ? found->transition : ScreenTransition{state, Action::Ignore};
}

} // namespace tessera
