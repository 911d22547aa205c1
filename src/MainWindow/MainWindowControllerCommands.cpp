// SPDX-License-Identifier: MIT
// What the window does with the commands of menus, shortcuts and keys.
#include "Desktop/Alert.h"
#include "Desktop/OpenPanel.h"
#include "HomeScreen/Places/PlaceNames.h"
#include "MainWindow/BackupFolder.h"
#include "MainWindow/HomeScreen.h"
#include "MainWindow/MainWindowController.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/TopFolder.h"
#include "TreeScreen/TreeViewController.h"
#include "Undo/TrashUndo.h"

#include <QMainWindow>

#include <utility>
#include <vector>

namespace tessera {

CommandContext MainWindowController::commandContext() const
{
    CommandContext context = m_treeVC == nullptr ? CommandContext() : m_treeVC->commandContext();
    context.hasHomeScreen = m_homeVC != nullptr;
    context.isScanRunning = isScanRunning();
    context.isStatusLineOn = m_status.isOn();
    context.isLedgerOpen = m_panels.isLedgerOpen();
    context.undoTitle = m_services.treeScreen.trashUndo.undoTitle();
    context.redoTitle = m_services.treeScreen.trashUndo.redoTitle();
    context.whyNoUndo = m_services.treeScreen.trashUndo.whyNoUndo();
    context.whyNoRedo = m_services.treeScreen.trashUndo.whyNoRedo();
    return context;
}

void MainWindowController::perform(Command command)
{
    switch (command) {
    case Command::OpenFolder:
        openFolder();
        break;
    case Command::Home:
        homeSelected();
        break;
    case Command::Preferences:
        emit preferencesRequested();
        break;
    case Command::Quit:
        m_window->close();
        break;
    case Command::FullScreen:
        toggleFullScreen();
        break;
    case Command::TrashHistory:
        emit historyRequested();
        break;
    case Command::Features:
        emit helpRequested(HelpPage::Features);
        break;
    case Command::Questions:
        emit helpRequested(HelpPage::Questions);
        break;
    case Command::About:
        emit aboutRequested();
        break;
    case Command::Reload:
        reload();
        break;
    default:
        performOnItems(command);
        break;
    }
}

/// Those that are about what was scanned, or was moved to the trash.
void MainWindowController::performOnItems(Command command)
{
    switch (command) {
    case Command::Undo:
        m_services.treeScreen.trashUndo.undo();
        break;
    case Command::Redo:
        m_services.treeScreen.trashUndo.redo();
        break;
    case Command::SpaceLedger:
        if (isEnabled(command, commandContext())) {
            m_panels.toggleLedger();
        }
        break;
    case Command::Basket:
        if (isEnabled(command, commandContext())) {
            m_panels.toggleBasket();
        }
        break;
    case Command::StatusLine:
        if (isEnabled(command, commandContext())) {
            m_status.toggle();
        }
        break;
    default:
        if (m_treeVC != nullptr) {
            performOnTree(command);
        }
        break;
    }
}

/// All but two commands are the same from the menus as from the picture's own keys.
void MainWindowController::performOnTree(Command command)
{
    if (command == Command::Rescan) {
        rescan();
    } else if (command != Command::QuickLook) {
        m_treeVC->perform(command);
    } else if (m_treeVC->validate(command)) {
        // An open preview comes to the front, where the picture's Space would close it.
        m_treeVC->quickLook();
    }
}

/// The scanned folder has no place in a tree in which a new one could be put: it is scanned as if
/// the user had chosen it again, which ends the tree screen.
void MainWindowController::rescan()
{
    if (!m_treeVC->validate(Command::Rescan)) {
        return;
    }
    const Folder& folder = *m_treeVC->folderToRescan();
    if (&folder == m_services.model.topFolder()) {
        scanUrl(folder.url());
    } else {
        m_treeVC->refreshFolder();
    }
}

/// Its panel may be sliding away by now.
bool MainWindowController::isScanRunning() const
{
    return m_state != ScreenState::Home && m_state != ScreenState::Tree;
}

void MainWindowController::reload()
{
    if (!isEnabled(Command::Reload, commandContext())) {
        return;
    }
    if (m_treeVC == nullptr) {
        m_homeVC->reload();
        return;
    }
    const File* const selected = m_treeVC->selectedFile();
    const PlaceInTree place{
        m_treeVC->currentFolder()->absolutePath(),
        selected == nullptr ? std::string() : selected->absolutePath()};
    scanUrl(Url(m_services.model.topFolder()->url()));
    m_comeBack = place;
}

/// As far as there is still what was there before.
void MainWindowController::comeBack()
{
    if (!m_comeBack) {
        return;
    }
    const PlaceInTree place = *std::exchange(m_comeBack, std::nullopt);
    TopFolder& top = *m_services.model.topFolder();
    if (auto* const folder = nodeCast<Folder>(nearestNodeAtPath(top, place.folderInView))) {
        m_treeVC->setCurrentFolder(folder);
    }
    if (!place.selected.empty()) {
        m_treeVC->setSelectedFile(nodeAtPath(top, place.selected));
    }
    m_treeVC->renderTree();
}

void MainWindowController::openFolder()
{
    m_services.openPanel.begin(
        *m_window, [this](const std::vector<Url>& urls) { folderChosen(urls); });
}

void MainWindowController::folderChosen(const std::vector<Url>& urls)
{
    if (urls.empty()) {
        return;
    }
    if (isTimeMachineBackup(urls.back())) {
        refuseTimeMachine(urls.back());
        return;
    }
    scanUrl(urls.back());
}

void MainWindowController::refuseTimeMachine(const Url& url)
{
    const Url volume = volumeOf(url, m_services.volumes);
    m_services.treeScreen.alert.beginSheet(
        //: Translate “Backup Detected”: the system has words of its own.
        {tr("Time Machine Detected"),
         //: Translate “a backup” and “the backups”: the system has words of its own.
         tr("Tessera is unable to scan inside a Time Machine backup. To estimate the overall size "
            "of Time Machine, please scan the disk labeled '%1'.")
             .arg(localizedVolumeName(volume)),
         {tr("OK")}});
}

void MainWindowController::toggleFullScreen()
{
    m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen);
}

} // namespace tessera
