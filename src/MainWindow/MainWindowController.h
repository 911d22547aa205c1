// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Observation.h"
#include "Commands/CommandContext.h"
#include "MainWindow/ChangesDuringScan.h"
#include "MainWindow/HelpPage.h"
#include "MainWindow/MainToolbar.h"
#include "MainWindow/MainWindowServices.h"
#include "MainWindow/Menus/IgnoreMenu.h"
#include "MainWindow/ScanPanelSlide.h"
#include "MainWindow/ScreenStates.h"
#include "MainWindow/TreePanels.h"
#include "MainWindow/TreeStatusBar.h"

#include <QMenu>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

class QMainWindow;

namespace Ui {
class MainWindow;
}

namespace tessera {

class CommandActions;
class HomeScreen;
class ScanScreen;
class TreeMapView;
class TreeViewController;
class Url;

/// The controller of the program's one main window: shows the home screen, the scan panel or the
/// tree, and gives the menus' commands to whom they are for. Screens are made anew each time and
/// released when others take their place. Main thread only.
class MainWindowController final : public QObject {
    Q_OBJECT

public:
    explicit MainWindowController(const MainWindowServices& services);
    ~MainWindowController() override;

    QMainWindow& window() const { return *m_window; }
    /// Opens the window where it was the last time.
    void showWindow();
    /// Remembers where the window is, while it is open.
    void keepPlace();
    /// Has somebody be asked before the user closes the window; false keeps it open.
    void setMayClose(std::function<bool()> mayClose) { m_mayClose = std::move(mayClose); }

    ScreenState state() const { return m_state; }
    /// Null while the tree is not displayed.
    TreeViewController* treeVC() const { return m_treeVC.get(); }
    const MainToolbar& toolbar() const { return *m_toolbar; }
    IgnoreMenu& ignoreMenu() { return m_ignoreMenu; }
    ScanPanelSlide& slide() { return m_slide; }
    SidePanels& sidePanels() { return m_panels.sidePanels(); }

    /// Shows the home screen instead of the tree.
    void homeSelected();
    /// Lets the user choose a folder to scan.
    void openFolder();
    /// Scans the folder, whatever is displayed now; another scan that runs ends.
    void scanUrl(const Url& url);
    /// A folder of the path bar was clicked.
    void pathSelected();
    /// Shows in the path bar where the folder in view lies; nothing without a tree.
    void refreshPathControl();

    /// What decides which commands can be performed now.
    CommandContext commandContext() const;
    /// Carries out a menu's command. One that makes no sense now does nothing.
    void perform(Command command);

signals:
    void preferencesRequested();
    void historyRequested();
    void helpRequested(tessera::HelpPage page);
    void aboutRequested();
    /// The user closed the window.
    void closed();
    /// The scan of that folder has begun.
    void scanStarted(const Url& url);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void loadWindow();
    void connectCommands();
    void loadPanels();
    void observeSettings();
    void setShown(const QString& what);
    void handle(ScreenEvent event, const Url& url);
    void act(ScreenAction action, const Url& url);
    void showHome();
    void startScan(const Url& url);
    void slideScanIn(const Url& url);
    template <typename Screen>
    void retire(std::unique_ptr<Screen>& screen);
    void dropScan();
    void cleanUp();
    void displayTree();
    void placeScreens();
    void performOnItems(Command command);
    void performOnTree(Command command);
    void rescan();
    bool isScanRunning() const;
    void reload();
    void comeBack();
    void folderChosen(const std::vector<Url>& urls);
    void refuseTimeMachine(const Url& url);
    void toggleFullScreen();
    void saveWindow();

    /// Where the user was in a tree; paths in that.
    struct PlaceInTree {
        std::string folderInView;
        std::string selected; ///< empty: nothing
    };

    const MainWindowServices m_services;
    std::function<bool()> m_mayClose = [] { return true; };
    ScreenState m_state = ScreenState::Starting;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<Ui::MainWindow> m_ui;
    QWidget* m_view; ///< the window's content area, which holds the screens
    CommandActions* m_actions;
    TreePanels m_panels;
    TreeStatusBar m_status;
    QMenu m_itemMenu; ///< under the toolbar's button
    IgnoreMenu m_ignoreMenu;
    std::unique_ptr<MainToolbar> m_toolbar;
    ScanPanelSlide m_slide;
    std::unique_ptr<HomeScreen> m_homeVC;
    std::unique_ptr<ScanScreen> m_scanVC;
    std::unique_ptr<TreeMapView> m_treeView;
    std::unique_ptr<TreeViewController> m_treeVC;
    /// Screens that are no longer shown. It may be a call of their own that ended them, so they are
    /// released from the event loop.
    std::vector<std::variant<std::unique_ptr<HomeScreen>, std::unique_ptr<ScanScreen>>> m_retired;
    QTimer m_release;
    ChangesDuringScan m_changes;
    std::optional<PlaceInTree> m_comeBack; ///< when the scan that runs is of the same tree again
    Observation m_settings;
};

} // namespace tessera
