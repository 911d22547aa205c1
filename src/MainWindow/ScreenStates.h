// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// What the main window shows.
enum class ScreenState : std::uint8_t {
    Starting, ///< nothing yet
    Home,
    Scanning, ///< the home screen, disabled, and the scan panel
    Cancelling, ///< the same while the panel slides away
    Tree,
};

/// What can happen to the main window.
enum class ScreenEvent : std::uint8_t {
    WindowLoaded,
    HomeSelected,
    ScanUrl,
    ScanCancelled,
    ScanComplete,
    CurrentFolderChanged,
    CleanUpDue, ///< the cancelled panel has slid away
};

/// What the main window does about it.
enum class ScreenAction : std::uint8_t {
    Ignore,
    ShowHome,
    SlideScanIn,
    ShowHomeAndSlideScanIn,
    ReplaceScan, ///< drop the scan that runs, and show another one in its place
    SlideScanOut,
    CleanUp, ///< enable the home screen, drop the scan panel
    ShowTree,
    RefreshPath,
};

struct ScreenTransition {
    ScreenState next;
    ScreenAction action;

    bool operator==(const ScreenTransition&) const = default;
};

/// The one place that says what may follow what. An event that makes no sense in a state is
/// ignored there, and the state stays.
[[nodiscard]] ScreenTransition screenTransition(ScreenState state, ScreenEvent event);

} // namespace tessera
