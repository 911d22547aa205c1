// SPDX-License-Identifier: MIT
#include "MainWindow/MainWindowController.h"

#include "Base/DisplayText.h"
#include "Base/Log.h"
#include "Basket/BasketKeeper.h"
#include "Commands/CommandActions.h"
#include "MainWindow/HomeScreen.h"
#include "MainWindow/Menus/MainMenus.h"
#include "MainWindow/ScanScreen.h"
#include "MainWindow/WindowFrame.h"
#include "MainWindow/WindowTitle.h"
#include "Model/RootModel.h"
#include "Model/UserDefaults.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/PathBar/ToolbarPathControl.h"
#include "TreeScreen/TreeViewController.h"
#include "Undo/TrashUndo.h"
#include "ui_MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <utility>
#include <variant>

namespace tessera {

namespace {

constexpr int kLeastWidth = 760; ///< of the window

std::unique_ptr<Ui::MainWindow> setUp(QMainWindow& window)
{
    auto ui = std::make_unique<Ui::MainWindow>();
    ui->setupUi(&window);
    return ui;
}

QRect wholePoints(const Rect& rect)
{
    return QRectF(rect.x, rect.y, rect.width, rect.height).toRect();
}

/// Lines break where the window is narrow, so that is where the panel is highest.
double panelHeight(const QWidget& panel)
{
    return std::max(ScanPanelPlace::kPanelHeight, 1.0 * panel.heightForWidth(kLeastWidth));
}

} // namespace

MainWindowController::MainWindowController(const MainWindowServices& services)
    : m_services(services)
    , m_window(std::make_unique<QMainWindow>())
    , m_ui(setUp(*m_window))
    , m_view(m_ui->view)
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    , m_actions(new CommandActions(*m_window, [this] { return commandContext(); }))
    , m_panels(*m_window, m_services)
    , m_status(*m_window, m_services.defaults)
    , m_ignoreMenu(services.model)
    , m_slide(services.treeScreen.motion, services.slideClock)
    , m_changes(services.treeScreen.diskChanges)
{
    loadWindow();
    m_services.model.recents().reload();
    handle(ScreenEvent::WindowLoaded, {});
}

MainWindowController::~MainWindowController()
{
    m_window->removeEventFilter(this);
    m_view->removeEventFilter(this);
}

void MainWindowController::loadWindow()
{
    fillMenuBar(*m_window->menuBar(), *m_actions);
    fillMenu(m_itemMenu, MainMenu::Item, *m_actions);
    m_toolbar = std::make_unique<MainToolbar>(*m_ui->toolbar, m_itemMenu);
    m_toolbar->toolbarIgnoreButton().setMenu(&m_ignoreMenu);
    connectCommands();
    QAction& home = m_actions->action(Command::Home);
    m_toolbar->toolbarHomeButton().setWhatsThis(home.whatsThis());
    connect(&m_toolbar->toolbarHomeButton(), &QToolButton::clicked, &home, &QAction::trigger);
    connect(
        &m_toolbar->toolbarPathControl(),
        &ToolbarPathControl::clicked,
        this,
        &MainWindowController::pathSelected);
    connect(&m_slide, &ScanPanelSlide::moved, this, &MainWindowController::placeScreens);
    connect(&m_slide, &ScanPanelSlide::cleanUpDue, this, [this] {
        handle(ScreenEvent::CleanUpDue, {});
    });
    m_release.setSingleShot(true);
    m_release.callOnTimeout(this, [this] { m_retired.clear(); });
    m_window->installEventFilter(this);
    m_view->installEventFilter(this);
    // The program may end without the window being closed.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &MainWindowController::keepPlace);
    loadPanels();
    observeSettings();
}

void MainWindowController::connectCommands()
{
    connect(m_actions, &CommandActions::triggered, this, &MainWindowController::perform);
    connect(
        &m_services.treeScreen.trashUndo,
        &TrashUndo::changed,
        m_actions,
        &CommandActions::validate);
    connect(
        &m_services.treeScreen.basket,
        &BasketKeeper::changed,
        m_actions,
        &CommandActions::validate);
}

void MainWindowController::loadPanels()
{
    connect(&sidePanels(), &SidePanels::backToPicture, this, [this] {
        if (m_treeView != nullptr) {
            m_treeView->setFocus();
        }
    });
    connect(&sidePanels(), &SidePanels::opened, m_actions, &CommandActions::validate);
    connect(&sidePanels(), &SidePanels::closed, m_actions, &CommandActions::validate);
}

void MainWindowController::observeSettings()
{
    m_settings = m_services.defaults.addChangeObserver([this](std::string_view key) {
        if (key == kFolderSizesKey && m_treeView != nullptr) {
            m_treeView->paintAnew();
        } else if (key == kStatusLineKey) {
            m_actions->validate();
        }
    });
}

/// Nothing for an empty text.
void MainWindowController::setShown(const QString& what)
{
    m_window->setWindowTitle(mainWindowTitle(what));
}

void MainWindowController::handle(ScreenEvent event, const Url& url)
{
    const ScreenTransition transition = screenTransition(m_state, event);
    m_state = transition.next;
    act(transition.action, url);
    m_actions->validate();
    const CommandContext context = commandContext();
    m_toolbar->setDisabledBecause(
        whyDisabled(Command::Home, context), whyDisabled(Command::Basket, context));
}

void MainWindowController::act(ScreenAction action, const Url& url)
{
    switch (action) {
    case ScreenAction::Ignore:
        break;
    case ScreenAction::ShowHome:
        showHome();
        break;
    case ScreenAction::SlideScanIn:
        slideScanIn(url);
        break;
    case ScreenAction::ShowHomeAndSlideScanIn:
        showHome();
        slideScanIn(url);
        break;
    case ScreenAction::ReplaceScan:
        startScan(url);
        break;
    case ScreenAction::SlideScanOut:
        m_slide.slideOut();
        setShown({});
        break;
    case ScreenAction::CleanUp:
        cleanUp();
        break;
    case ScreenAction::ShowTree:
        displayTree();
        refreshPathControl();
        break;
    case ScreenAction::RefreshPath:
        refreshPathControl();
        break;
    }
}

void MainWindowController::showHome()
{
    m_ignoreMenu.setTreeViewController(nullptr);
    m_ignoreMenu.removeFolders();
    if (m_treeVC != nullptr) {
        m_panels.treeLeaves();
        m_status.treeLeaves();
    }
    m_treeVC.reset();
    m_treeView.reset();
    m_toolbar->setTreeDisplayed(false);
    setShown({});
    m_homeVC = m_services.makeHomeScreen();
    connect(m_homeVC.get(), &HomeScreen::openFolder, this, &MainWindowController::openFolder);
    connect(m_homeVC.get(), &HomeScreen::scanUrl, this, [this](const Url& url) {
        handle(ScreenEvent::ScanUrl, url);
    });
    QWidget& home = m_homeVC->view();
    home.setParent(m_view);
    placeScreens();
    home.show();
    m_homeVC->takeFocus();
}

void MainWindowController::slideScanIn(const Url& url)
{
    startScan(url);
    m_homeVC->setEnabled(false);
    m_slide.slideIn(panelHeight(m_scanVC->view()));
}

/// A scan that still runs ends here and now: an end of it that is on its way already must not be
/// taken for the new one's.
void MainWindowController::startScan(const Url& url)
{
    m_changes.scanBegins();
    m_comeBack.reset();
    m_scanVC.reset();
    m_scanVC = m_services.makeScanScreen();
    connect(m_scanVC.get(), &ScanScreen::scanCancelled, this, [this] {
        handle(ScreenEvent::ScanCancelled, {});
    });
    connect(m_scanVC.get(), &ScanScreen::scanComplete, this, [this] {
        handle(ScreenEvent::ScanComplete, {});
    });
    QWidget& panel = m_scanVC->view();
    panel.setParent(m_view);
    placeScreens();
    setShown(tr("Scanning %1").arg(displayText(url.lastPathComponent())));
    m_scanVC->startScanning(url);
    panel.show();
    panel.raise();
    panel.setFocus();
    emit scanStarted(url);
}

template <typename Screen>
void MainWindowController::retire(std::unique_ptr<Screen>& screen)
{
    if (screen != nullptr) {
        screen->view().hide();
        // What it still has to say is of a screen that is gone.
        screen->disconnect(this);
        m_retired.push_back(std::move(screen));
        m_release.start();
    }
}

void MainWindowController::dropScan()
{
    retire(m_scanVC);
}

void MainWindowController::cleanUp()
{
    m_homeVC->setEnabled(true);
    dropScan();
    m_homeVC->takeFocus();
}

void MainWindowController::displayTree()
{
    m_slide.reset();
    dropScan();
    retire(m_homeVC);
    m_toolbar->setTreeDisplayed(true);
    m_panels.treeComes();
    m_status.treeComes();
    m_treeView = std::make_unique<TreeMapView>(m_services.treeScreen.defaults, m_view);
    placeScreens();
    m_treeVC = std::make_unique<TreeViewController>(
        m_services.model, *m_treeView, m_services.treeScreen, m_actions);
    connect(m_treeVC.get(), &TreeViewController::currentFolderChanged, this, [this] {
        handle(ScreenEvent::CurrentFolderChanged, {});
    });
    connect(
        m_treeVC.get(),
        &TreeViewController::treeChanged,
        this,
        &MainWindowController::refreshPathControl);
    connect(
        m_treeVC.get(),
        &TreeViewController::selectionChanged,
        m_actions,
        &CommandActions::validate);
    // A rescan has begun or ended, perhaps.
    connect(
        m_treeVC.get(), &TreeViewController::pictureRebuilt, m_actions, &CommandActions::validate);
    m_ignoreMenu.setTreeViewController(m_treeVC.get());
    m_panels.connectTo(*m_treeVC);
    m_status.connectTo(*m_treeVC, *m_treeView);
    m_changes.tell(*m_treeVC);
    comeBack();
    m_treeView->show();
    m_treeView->setFocus();
}

void MainWindowController::placeScreens()
{
    const ScanPanelPlace& place = m_slide.place();
    const double width = m_view->width();
    const double height = m_view->height();
    if (m_homeVC != nullptr) {
        m_homeVC->view().setGeometry(wholePoints(place.homeFrame(width, height)));
    }
    if (m_scanVC != nullptr) {
        m_scanVC->view().setGeometry(wholePoints(place.panelFrame(width, height)));
    }
    if (m_treeView != nullptr) {
        m_treeView->setGeometry(m_view->rect());
    }
}

void MainWindowController::homeSelected()
{
    handle(ScreenEvent::HomeSelected, {});
}

void MainWindowController::pathSelected()
{
    if (m_treeVC != nullptr) {
        m_treeVC->clickFolderPath(m_toolbar->toolbarPathControl().clickedPathComponent()->url());
    }
}

void MainWindowController::refreshPathControl()
{
    if (m_treeVC == nullptr || m_treeVC->currentFolder() == nullptr) {
        return;
    }
    ToolbarPathControl& path = m_toolbar->toolbarPathControl();
    path.setPathComponents(
        pathComponents(*m_treeVC->currentFolder(), m_services.treeScreen.compressing.icons));
    path.refreshWidth();
    const Url folder = m_treeVC->currentFolder()->url();
    setShown(displayText(folder.lastPathComponent()));
}

void MainWindowController::scanUrl(const Url& url)
{
    logLine("Scan: %s", url.absoluteString().c_str());
    handle(ScreenEvent::ScanUrl, url);
}

void MainWindowController::showWindow()
{
    restoreFrame(*m_window, m_services.defaults);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void MainWindowController::keepPlace()
{
    if (m_window->isVisible()) {
        saveWindow();
    }
}

void MainWindowController::saveWindow()
{
    sidePanels().save();
    saveFrame(*m_window, m_services.defaults);
}

bool MainWindowController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view && event->type() == QEvent::Resize) {
        placeScreens();
    } else if (watched == m_window.get() && event->type() == QEvent::Close) {
        if (!m_mayClose()) {
            event->ignore();
            return true;
        }
        saveWindow();
        emit closed();
    } else if (watched == m_window.get() && event->type() == QEvent::KeyPress) {
        const auto& pressed = *static_cast<QKeyEvent*>(event);
        if (const auto command = m_actions->disabledCommand(pressed);
            command && !pressed.isAutoRepeat() && m_treeVC != nullptr) {
            m_treeVC->say(whyDisabled(*command, commandContext()));
        } else if (command == Command::Rescan && pressed.key() == Qt::Key_F5) {
            // On the home screen it is the key that it is everywhere else.
            perform(Command::Reload);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessera
