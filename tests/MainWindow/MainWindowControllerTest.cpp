// SPDX-License-Identifier: MIT
#include "MainWindow/MainWindowController.h"

#include "Commands/CommandTable.h"
#include "MainWindowFixture.h"
#include "Model/UserDefaults.h"
#include "QuickLook/QuickLookPanel.h"
#include "TreeScreen/PathBar/PathComponent.h"
#include "TreeScreen/PathBar/PathComponentButton.h"
#include "TreeScreen/PathBar/ToolbarPathControl.h"
#include "TreeScreen/TreeNote.h"
#include "support/BecomesActive.h"

#include <QApplication>
#include <QKeySequence>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindowControllerTest : public test::MainWindowFixture {
protected:
    ToolbarPathControl& path() const { return controller->toolbar().toolbarPathControl(); }

    std::vector<int> pathTags() const
    {
        std::vector<int> tags;
        for (const PathComponent& component : path().pathComponents()) {
            tags.push_back(component.tag());
        }
        return tags;
    }

    void choose(const char* folder)
    {
        controller->openFolder();
        services.openPanel.choose({Url(folder, true)});
    }

    const QAction& action(Command command) const
    {
        const QList<QAction*> actions = controller->window().actions();
        return **std::ranges::find(actions, titleOf(rowOf(command)), &QAction::text);
    }
    bool isEnabled(Command command) const { return action(command).isEnabled(); }

    /// A tree in which a disk is mounted at "mnt".
    void showTreeWithMountPoint()
    {
        requestScan();
        services.model.setTopFolder(test::makeTree("/data", "mnt/ ( a:500 ) c:500"));
        File& onlyOne = test::at(*services.model.topFolder(), "mnt/a");
        onlyOne.parent()->removeChild(onlyOne);
        services.treeScreen.resourceValues.mountPoints = {"/data/mnt"};
        emit services.screens.scanScreen->scanComplete();
        QCoreApplication::processEvents();
    }
    int mountPointQuestions() const
    {
        return services.treeScreen.resourceValues.mountPointQuestions;
    }

    void pressKeys(const char* keys) const
    {
        QTest::keySequence(
            &controller->window(), QKeySequence::fromString(QString::fromLatin1(keys)));
    }

    /// What is said on the picture; empty while nothing is.
    QString said() const
    {
        const auto* const note = controller->window().findChild<TreeNote*>();
        return note != nullptr && note->isVisible() ? note->text() : QString();
    }
};

TEST_F(MainWindowControllerTest, ThePathOfTheRootIsOneCellTagged100)
{
    showTree();
    EXPECT_THAT(pathTags(), ElementsAre(100));
}

TEST_F(MainWindowControllerTest, ThePathLeadsFromTheRootToTheFolderInView)
{
    showTree();
    zoomIntoDocs();
    EXPECT_THAT(pathTags(), ElementsAre(0, 100));
    EXPECT_EQ(path().pathComponents().back().url().path(), "/data/docs");
}

TEST_F(MainWindowControllerTest, AClickInThePathBarZoomsOut)
{
    showTree();
    zoomIntoDocs();
    QTest::mouseClick(path().findChild<PathComponentButton*>(), Qt::LeftButton);
    EXPECT_EQ(controller->treeVC()->currentFolder(), services.model.topFolder());
}

TEST_F(MainWindowControllerTest, WithoutATreeThePathBarIsLeftAlone)
{
    controller->refreshPathControl();
    controller->pathSelected();
    EXPECT_THAT(pathTags(), IsEmpty());
}

TEST_F(MainWindowControllerTest, ZoomOutIsDisabledWithTheRootInViewAndEnabledInAnyFolder)
{
    showTree();
    EXPECT_FALSE(isEnabled(Command::ZoomOut));
    zoomIntoDocs();
    EXPECT_TRUE(isEnabled(Command::ZoomOut));
}

TEST_F(MainWindowControllerTest, TheCommandsFollowTheSelectionAtOnce)
{
    showTree();
    EXPECT_FALSE(isEnabled(Command::QuickLook));
    select("c");
    EXPECT_TRUE(isEnabled(Command::QuickLook));
    EXPECT_FALSE(isEnabled(Command::Rescan));
    select("docs");
    EXPECT_TRUE(isEnabled(Command::Rescan));
}

TEST_F(MainWindowControllerTest, ASelectionTakesOneQuestionToTheSystem)
{
    showTreeWithMountPoint();
    const int before = mountPointQuestions();
    select("mnt");
    EXPECT_FALSE(isEnabled(Command::Rescan));
    EXPECT_EQ(mountPointQuestions(), before + 1);
}

TEST_F(MainWindowControllerTest, ResizingTheWindowTakesNoQuestionToTheSystem)
{
    showTreeWithMountPoint();
    select("mnt");
    const int before = mountPointQuestions();
    controller->window().resize(controller->window().size() - QSize(50, 50));
    QCoreApplication::processEvents();
    EXPECT_EQ(mountPointQuestions(), before);
}

TEST_F(MainWindowControllerTest, WhatIsMountedOrNotIsAskedAnewWithTheNextSelection)
{
    showTreeWithMountPoint();
    select("mnt");
    services.treeScreen.resourceValues.mountPoints.clear();
    select("mnt");
    EXPECT_TRUE(isEnabled(Command::Rescan));
}

TEST_F(MainWindowControllerTest, ADisabledEntryOfTheItemMenuSaysWhyInItsTooltip)
{
    showTreeWithMountPoint();
    select("mnt");
    EXPECT_EQ(
        action(Command::Rescan).toolTip(),
        QStringLiteral("A disk is mounted at 'mnt'. It is not part of this scan; scan it by "
                       "itself."));
}

TEST_F(MainWindowControllerTest, TheDisabledWayOutSaysWhyInItsTooltip)
{
    showTree();
    EXPECT_EQ(
        action(Command::ZoomOut).toolTip(),
        QStringLiteral("'data' is all that was scanned. There is no folder around it here."));
}

TEST_F(MainWindowControllerTest, RescanIsDisabledWhileOneRunsAndEnabledWhenItHasEnded)
{
    showTree();
    select("docs");
    controller->perform(Command::Rescan);
    EXPECT_FALSE(isEnabled(Command::Rescan));
    const File* const before = &test::at(*services.model.topFolder(), "docs");
    services.treeScreen.mainThread.runUntil(
        [&] { return &test::at(*services.model.topFolder(), "docs") != before; });
    EXPECT_TRUE(isEnabled(Command::Rescan));
}

TEST_F(MainWindowControllerTest, WithNothingSelectedRescanAtTheTopScansAllAgain)
{
    showTree();
    services.screens.scanned.clear();
    controller->perform(Command::Rescan);
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data"));
    EXPECT_EQ(controller->state(), ScreenState::Scanning);
}

TEST_F(MainWindowControllerTest, WithNothingSelectedRescanIsOfTheFolderInView)
{
    showTree();
    zoomIntoDocs();
    services.screens.scanned.clear();
    controller->perform(Command::Rescan);
    EXPECT_THAT(services.screens.scanned, IsEmpty());
    EXPECT_TRUE(test::at(*services.model.topFolder(), "docs").rescanning());
    const File* const before = &test::at(*services.model.topFolder(), "docs");
    services.treeScreen.mainThread.runUntil(
        [&] { return &test::at(*services.model.topFolder(), "docs") != before; });
}

TEST_F(MainWindowControllerTest, WhileAFolderIsRescannedNothingElseIs)
{
    showTree();
    select("docs");
    controller->perform(Command::Rescan);
    services.screens.scanned.clear();
    controller->perform(Command::Rescan);
    EXPECT_THAT(services.screens.scanned, IsEmpty());
    EXPECT_EQ(controller->state(), ScreenState::Tree);
    const File* const before = &test::at(*services.model.topFolder(), "docs");
    services.treeScreen.mainThread.runUntil(
        [&] { return &test::at(*services.model.topFolder(), "docs") != before; });
}

TEST_F(MainWindowControllerTest, WithAFileSelectedRescanDoesNothingAndSaysWhy)
{
    showTree();
    controller->window().activateWindow();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    select("c");
    services.screens.scanned.clear();
    pressKeys("F5");
    EXPECT_THAT(services.screens.scanned, IsEmpty());
    EXPECT_TRUE(said().startsWith(QStringLiteral("Only folders can be scanned again.")));
}

TEST_F(MainWindowControllerTest, TheShortcutsOfDisabledCommandsSayWhyTheyDoNothing)
{
    showTree();
    controller->window().activateWindow();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    for (const char* keys : {"Ctrl+Y", "Ctrl+Shift+R", "Ctrl+Shift+C", "Ctrl+Del"}) {
        controller->treeVC()->renderTree();
        pressKeys(keys);
        EXPECT_EQ(said(), QStringLiteral("Select a file or a folder first.")) << keys;
    }
    for (const char* keys : {"Ctrl+I", "Ctrl++", "Alt+Down"}) {
        controller->treeVC()->renderTree();
        pressKeys(keys);
        EXPECT_EQ(said(), QStringLiteral("Select a folder first.")) << keys;
    }
    controller->treeVC()->renderTree();
    pressKeys("Alt+Up");
    EXPECT_TRUE(said().startsWith(QStringLiteral("'data' is all that was scanned.")));
}

TEST_F(MainWindowControllerTest, AShortcutThatIsHeldDownSaysItOnce)
{
    showTree();
    select("c");
    controller->treeVC()->renderTree();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&controller->window(), &held);
    EXPECT_EQ(said(), QString());
}

TEST_F(MainWindowControllerTest, TheWayHomeIsDisabledOnTheHomeScreen)
{
    EXPECT_FALSE(isEnabled(Command::Home));
    requestScan();
    EXPECT_FALSE(isEnabled(Command::Home));
    finishScan();
    EXPECT_TRUE(isEnabled(Command::Home));
}

TEST_F(MainWindowControllerTest, CommandsOnItemsDoNothingWithoutATree)
{
    for (const CommandRow& row : commandTable()) {
        if (row.menu == MainMenu::Item) {
            controller->perform(row.command);
        }
    }
    controller->perform(Command::ZoomIn);
    controller->perform(Command::ZoomOut);
    EXPECT_EQ(controller->state(), ScreenState::Home);
    EXPECT_THAT(services.treeScreen.workspace.revealed, IsEmpty());
}

TEST_F(MainWindowControllerTest, CommandsOnItemsDoNothingWithoutASelection)
{
    showTree();
    controller->perform(Command::ShowInFinder);
    controller->perform(Command::MoveToTrash);
    controller->perform(Command::QuickLook);
    EXPECT_THAT(services.treeScreen.workspace.revealed, IsEmpty());
    EXPECT_THAT(services.treeScreen.workspace.recycled, IsEmpty());
    EXPECT_FALSE(QuickLookPanel::sharedInstance().isOpen());
}

TEST_F(MainWindowControllerTest, CommandsReachTheTreeScreen)
{
    showTree();
    select("c");
    controller->perform(Command::ShowInFinder);
    EXPECT_THAT(services.treeScreen.workspace.revealed, ElementsAre("/data/c"));
    controller->perform(Command::MoveToTrash);
    ASSERT_EQ(services.treeScreen.workspace.recycled.size(), 1U);
    EXPECT_EQ(services.treeScreen.workspace.recycled[0][0].path(), "/data/c");
}

TEST_F(MainWindowControllerTest, TheHomeButtonSaysWhatItsCommandDoes)
{
    const QToolButton& button = controller->toolbar().toolbarHomeButton();
    showTree();
    EXPECT_EQ(button.whatsThis(), helpOf(rowOf(Command::Home)));
    EXPECT_EQ(button.toolTip(), QStringLiteral("Choose another disk or folder"));
}

TEST_F(MainWindowControllerTest, ZoomOutNeedsNoSelection)
{
    showTree();
    zoomIntoDocs();
    ASSERT_EQ(controller->treeVC()->selectedFile(), nullptr);
    controller->perform(Command::ZoomOut);
    EXPECT_EQ(controller->treeVC()->currentFolder(), services.model.topFolder());
}

TEST_F(MainWindowControllerTest, AChosenFolderIsScanned)
{
    controller->openFolder();
    EXPECT_THAT(services.screens.scanned, IsEmpty());
    services.openPanel.choose({Url("/a", true), Url("/b", true)});
    EXPECT_THAT(services.screens.scanned, ElementsAre("/b"));
}

TEST_F(MainWindowControllerTest, TheHomeScreensButtonLetsTheUserChooseAFolder)
{
    emit services.screens.homeScreen->openFolder();
    EXPECT_EQ(services.openPanel.shown, 1);
}

TEST_F(MainWindowControllerTest, APanelClosedWithoutAChoiceChangesNothing)
{
    controller->openFolder();
    services.openPanel.choose({});
    EXPECT_EQ(controller->state(), ScreenState::Home);
}

TEST_F(MainWindowControllerTest, ATimeMachineBackupIsRefusedWithTheNameOfItsVolume)
{
    services.volumes.list = {{Url("/", true)}, {Url("/media/me/Big Disk", true)}};
    choose("/media/me/Big Disk/Backups.backupdb/host/2026");
    ASSERT_EQ(services.treeScreen.alert.told.size(), 1U);
    const AlertText& told = services.treeScreen.alert.told[0];
    EXPECT_EQ(told.messageText, QStringLiteral("Time Machine Detected"));
    EXPECT_EQ(
        told.informativeText,
        QStringLiteral("Tessera is unable to scan inside a Time Machine backup. To estimate the "
                       "overall size of Time Machine, please scan the disk labeled 'Big Disk'."));
    EXPECT_EQ(told.buttons, QStringList{QStringLiteral("OK")});
    EXPECT_THAT(services.screens.scanned, IsEmpty());
    EXPECT_EQ(controller->state(), ScreenState::Home);
}

TEST_F(MainWindowControllerTest, TheDiskOfABackupIsNamedAsOnTheHomeScreen)
{
    services.volumes.list = {{Url("/", true)}};
    choose("/old/Backups.backupdb");
    ASSERT_EQ(services.treeScreen.alert.told.size(), 1U);
    EXPECT_TRUE(services.treeScreen.alert.told[0].informativeText.endsWith(
        QStringLiteral("please scan the disk labeled 'File System'.")));
}

TEST_F(MainWindowControllerTest, ABackupIsKnownByAnyPartOfItsPath)
{
    choose("/a/old Backups.backupdb copy/b");
    EXPECT_EQ(services.treeScreen.alert.told.size(), 1U);
    EXPECT_THAT(services.screens.scanned, IsEmpty());
}

TEST_F(MainWindowControllerTest, ShortcutsOfTheWindowReachTheirCommands)
{
    ASSERT_TRUE(test::becomesActive(controller->window()));
    QTest::keyClick(&controller->window(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(services.openPanel.shown, 1);
}

TEST_F(MainWindowControllerTest, TheHistoryIsAskedForOnAnyScreen)
{
    const QSignalSpy asked(controller.get(), &MainWindowController::historyRequested);
    controller->showWindow();
    ASSERT_TRUE(test::becomesActive(controller->window()));
    QTest::keyClick(&controller->window(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(asked.size(), 1);
}

TEST_F(MainWindowControllerTest, PreferencesAndHelpAreAskedForByTheirEntries)
{
    const QSignalSpy preferences(controller.get(), &MainWindowController::preferencesRequested);
    const QSignalSpy help(controller.get(), &MainWindowController::helpRequested);
    controller->perform(Command::Preferences);
    controller->perform(Command::Features);
    controller->perform(Command::Questions);
    EXPECT_EQ(preferences.size(), 1);
    ASSERT_EQ(help.size(), 2);
    EXPECT_EQ(help.at(0).at(0).value<HelpPage>(), HelpPage::Features);
    EXPECT_EQ(help.at(1).at(0).value<HelpPage>(), HelpPage::Questions);
    EXPECT_EQ(rowOf(Command::Features).tag, 62);
    EXPECT_EQ(rowOf(Command::Questions).tag, 64);
}

TEST_F(MainWindowControllerTest, QuitClosesTheWindow)
{
    const QSignalSpy closed(controller.get(), &MainWindowController::closed);
    controller->perform(Command::Quit);
    EXPECT_EQ(closed.size(), 1);
    EXPECT_FALSE(controller->window().isVisible());
}

TEST_F(MainWindowControllerTest, SizesComeIntoThePictureOnceTheUserWantsThem)
{
    showTree();
    const QImage before = map().picture();
    services.treeScreen.defaults.setBoolean(kFolderSizesKey, true);
    services.rootModel.defaults.setBoolean(kFolderSizesKey, true);
    EXPECT_NE(map().picture(), before);
}

TEST_F(MainWindowControllerTest, FullScreenIsSwitchedOnAndOff)
{
    controller->perform(Command::FullScreen);
    EXPECT_TRUE(controller->window().isFullScreen());
    controller->perform(Command::FullScreen);
    EXPECT_FALSE(controller->window().isFullScreen());
}

TEST_F(MainWindowControllerTest, TheFirstWindowHasTheSizeThatIsMeantForItAsFarAsTheScreenGoes)
{
    const QRect screen = controller->window().screen()->availableGeometry();
    EXPECT_EQ(controller->window().width(), std::min(1080, screen.width() - 8));
    EXPECT_EQ(controller->window().height(), std::min(720, screen.height() - 44));
    EXPECT_EQ(controller->window().minimumSize(), QSize(760, 520));
    EXPECT_EQ(controller->window().windowTitle(), QStringLiteral("Tessera"));
}

TEST_F(MainWindowControllerTest, TheNextWindowOpensWhereThisOneWas)
{
    controller->window().setGeometry(20, 50, 770, 600);
    controller->window().close();
    controller = std::make_unique<MainWindowController>(services.get());
    controller->showWindow();
    EXPECT_EQ(controller->window().geometry(), QRect(20, 50, 770, 600));
}

TEST_F(MainWindowControllerTest, AWindowThatWentPastTheScreenComesBackInsideIt)
{
    const QRect screen = controller->window().screen()->availableGeometry();
    const QSize large(screen.width() - 20, screen.height() + 60);
    controller->window().setGeometry(QRect(QPoint(30, 80), large));
    controller->window().close();
    controller = std::make_unique<MainWindowController>(services.get());
    controller->showWindow();
    EXPECT_TRUE(screen.contains(controller->window().geometry()));
    EXPECT_EQ(controller->window().width(), large.width());
}

TEST_F(MainWindowControllerTest, ABrokenRecordOfTheWindowsPlaceIsLeftAside)
{
    const QSize first = controller->window().size();
    services.rootModel.defaults.setString("MainWindowFrame", "nonsense");
    controller = std::make_unique<MainWindowController>(services.get());
    controller->showWindow();
    EXPECT_EQ(controller->window().size(), first);
}

TEST_F(MainWindowControllerTest, TheRecentScansAreLoadedForTheHomeScreen)
{
    services.rootModel.defaults.setRecentRecords("recents", {{"/data", 5, {}}});
    services.rootModel.documents.urls = {Url("/data", true)};
    controller = std::make_unique<MainWindowController>(services.get());
    EXPECT_EQ(services.model.recents().recentsList().size(), 1U);
}

} // namespace
} // namespace tessera
