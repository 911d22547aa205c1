// SPDX-License-Identifier: MIT
#pragma once

#include "Freeing/AskDisk.h"
#include "LedgerPanel/LedgerServices.h"
#include "TreeScreen/TreeViewServices.h"
#include "Widgets/FrameClock.h"

#include <functional>
#include <memory>

namespace tessera {

class HomeScreen;
class MountedVolumes;
class OpenPanel;
class RootModel;
class ScanScreen;
class UserDefaults;

/// What the main window needs; whatever is referred to must outlive it.
struct MainWindowServices {
    RootModel& model;
    TreeViewServices treeScreen;
    UserDefaults& defaults; ///< where the window's place on the screen is remembered
    OpenPanel& openPanel;
    const MountedVolumes& volumes;
    LedgerServices ledger;
    FreeingServices freeing;
    std::function<std::unique_ptr<HomeScreen>()> makeHomeScreen;
    std::function<std::unique_ptr<ScanScreen>()> makeScanScreen;
    FrameClock::Seconds slideClock = FrameClock::steadySeconds; ///< what the scan panel slides by
};

} // namespace tessera
