// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow/ScanPanelSlide.h"
#include "TreeScreen/TreeViewServices.h"
#include "TreeScreen/Zoom/ZoomAnimation.h"

#include <functional>
#include <memory>

class QWidget;

namespace tessera {

class HomeScreen;
class MountedVolumes;
class OpenPanel;
class RootModel;
class Url;
class UserDefaults;

/// The panel that shows how far a scan is. It posts "ScanComplete" when the model has the tree, or
/// else "ScanCancelled"; when it is destroyed before, its scan is cancelled without a word.
class ScanScreen {
public:
    ScanScreen() = default;
    ScanScreen(const ScanScreen&) = delete;
    ScanScreen& operator=(const ScanScreen&) = delete;
    virtual ~ScanScreen() = default;

    virtual QWidget& view() const = 0;
    virtual void startScanning(const Url& url) = 0;
};

/// What the main window needs; whatever is referred to must outlive it.
struct MainWindowServices {
    RootModel& model;
    TreeViewServices treeScreen;
    UserDefaults& defaults; ///< where the window's place on the screen is remembered
    OpenPanel& openPanel;
    const MountedVolumes& volumes;
    /// Gets what the home screen calls when a folder is to be chosen.
    std::function<std::unique_ptr<HomeScreen>(const std::function<void()>& openFolder)>
        makeHomeScreen;
    std::function<std::unique_ptr<ScanScreen>()> makeScanScreen;
    ScanPanelSlide::Clock slideClock = ZoomAnimation::steadyClock;
};

} // namespace tessera
