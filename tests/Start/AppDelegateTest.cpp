// SPDX-License-Identifier: MIT
#include "Start/AppDelegate.h"

#include "About/AboutWindow.h"
#include "Desktop/UserAccount.h"
#include "HistoryWindow/HistoryWindowController.h"
#include "MainWindow/MainWindowController.h"
#include "Preferences/PreferencesWindowController.h"
#include "support/Fakes/FakeMainWindowServices.h"
#include "support/Fakes/FakeTrashHistory.h"
#include "support/MakeTree.h"

#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QEventLoop>
#include <QMainWindow>
#include <QMimeData>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FakeUserAccount final : public UserAccount {
public:
    [[nodiscard]] std::optional<PasswordEntry> realUser() const override
    {
        return PasswordEntry{name, "/me"};
    }
    [[nodiscard]] std::string homeDirectory() const override { return "/me"; }
    [[nodiscard]] std::uint32_t userNumber() const override { return 0; }

    std::string name = "me";
};

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateServices appServices()
    {
        return {
            .mainWindow = services.get(),
            .userAccount = account,
            .trashHistory = history,
            .helpAddress = [](HelpPage page) -> std::string {
                return page == HelpPage::Features ? "file:///features" : "file:///faq";
            },
            .adoptActivationToken = [this](const std::string& token) { tokens.push_back(token); }};
    }

    void processEventsUntilScanned(const std::string& path)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return !services.screens.scanned.empty() && services.screens.scanned.back() == path;
        }));
    }

    void showTree()
    {
        delegate.openFile(Url("/data", true));
        services.model.setTopFolder(test::makeTree("/data", "a:700"));
        emit services.screens.scanScreen->scanComplete();
    }

    std::vector<std::string> tokens;
    FakeUserAccount account;
    test::FakeTrashHistory history;
    test::FakeMainWindowServices services;
    AppDelegate delegate{appServices()};
};

TEST_F(AppDelegateTest, TheStartOpensTheMainWindowOnTheHomeScreen)
{
    delegate.start();
    EXPECT_TRUE(delegate.mainWindow()->window().isVisible());
    EXPECT_EQ(delegate.mainWindow()->state(), ScreenState::Home);
}

TEST_F(AppDelegateTest, AFolderThatIsDroppedOnTheWindowIsScanned)
{
    services.treeScreen.resourceValues.directories = {"/data"};
    delegate.start();
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), "file:///data");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&delegate.mainWindow()->window(), &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&delegate.mainWindow()->window(), &drop);
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data"));
}

TEST_F(AppDelegateTest, TheStartRegistersTheDefaults)
{
    delegate.start();
    EXPECT_EQ(services.rootModel.defaults.integer("TooltipType"), 2);
}

TEST_F(AppDelegateTest, TheModelLearnsThatTheRealUserIsRoot)
{
    account.name = "root";
    delegate.start();
    EXPECT_TRUE(services.model.isRunningAsRoot());
}

TEST_F(AppDelegateTest, AnyOtherRealUserIsNotRoot)
{
    account.name = "rooty";
    delegate.start();
    EXPECT_FALSE(services.model.isRunningAsRoot());
}

TEST_F(AppDelegateTest, AFolderOpenedBeforeTheStartIsDropped)
{
    delegate.openFile(Url("/data", true));
    delegate.start();
    EXPECT_THAT(services.screens.scanned, IsEmpty());
}

TEST_F(AppDelegateTest, AFolderOpenedWithTheProgramIsScanned)
{
    delegate.start();
    delegate.openFile(Url("/data/some\xFF", true));
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data/some\xFF"));
}

TEST_F(AppDelegateTest, ABackupOpenedWithTheProgramIsScanned)
{
    delegate.start();
    delegate.openFile(Url("/a/Backups.backupdb", true));
    EXPECT_THAT(services.screens.scanned, ElementsAre("/a/Backups.backupdb"));
}

TEST_F(AppDelegateTest, AFolderOpenedWhileATreeIsDisplayedIsScannedFromTheHomeScreen)
{
    delegate.start();
    showTree();
    ASSERT_EQ(delegate.mainWindow()->state(), ScreenState::Tree);
    delegate.openFile(Url("/other", true));
    processEventsUntilScanned("/other");
    EXPECT_EQ(delegate.mainWindow()->state(), ScreenState::Scanning);
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data", "/other"));
}

TEST_F(AppDelegateTest, WhileTheUserHasToAnswerAQuestionAFolderWaits)
{
    delegate.start();
    QEventLoop application;
    QTimer::singleShot(0, &application, [&] {
        QEventLoop question;
        QTimer::singleShot(0, &question, [&] {
            delegate.openFile(Url("/data", true));
            EXPECT_THAT(services.screens.scanned, IsEmpty());
            question.quit();
        });
        question.exec();
    });
    QTimer poll;
    poll.callOnTimeout([&] {
        if (!services.screens.scanned.empty()) {
            application.quit();
        }
    });
    poll.start(1);
    application.exec();
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data"));
}

TEST_F(AppDelegateTest, OfManyFoldersOpenedAtOnceTheFirstAndTheLastAreScanned)
{
    delegate.start();
    for (int i = 0; i <= 1000; ++i) {
        delegate.openFromElsewhere(Url('/' + std::to_string(i), true));
    }
    EXPECT_THAT(services.screens.scanned, ElementsAre("/0"));
    processEventsUntilScanned("/1000");
    EXPECT_THAT(services.screens.scanned, ElementsAre("/0", "/1000"));
}

TEST_F(AppDelegateTest, AFolderOpenedLongAfterAnotherIsScannedAtOnce)
{
    delegate.start();
    delegate.openFile(Url("/data", true));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !delegate.isPausing(); }));
    delegate.openFile(Url("/other", true));
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data", "/other"));
}

TEST_F(AppDelegateTest, AnotherStartsTokenIsAdopted)
{
    delegate.start();
    delegate.openFromElsewhere(Url(), "token");
    delegate.openFromElsewhere(Url());
    EXPECT_THAT(tokens, ElementsAre("token"));
}

TEST_F(AppDelegateTest, AnotherStartBringsTheWindowBack)
{
    delegate.start();
    QMainWindow& window = delegate.mainWindow()->window();
    window.showMinimized();
    delegate.openFromElsewhere(Url());
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(services.screens.scanned, IsEmpty());
}

TEST_F(AppDelegateTest, AnotherStartOnAFolderHasItScanned)
{
    delegate.start();
    delegate.openFromElsewhere(Url("/data", true));
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data"));
}

TEST_F(AppDelegateTest, EachPreferencesWindowTakesThePreviousOnesPlace)
{
    delegate.start();
    delegate.mainWindow()->perform(Command::Preferences);
    ASSERT_NE(delegate.prefWindow(), nullptr);
    const QPointer<QWidget> first = &delegate.prefWindow()->window();
    EXPECT_TRUE(first->isVisible());
    delegate.showPreferences();
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(delegate.prefWindow()->window().isVisible());
}

TEST_F(AppDelegateTest, WhatTheProgramIsHasOneWindow)
{
    delegate.start();
    EXPECT_EQ(delegate.aboutWindow(), nullptr);
    delegate.mainWindow()->perform(Command::About);
    ASSERT_NE(delegate.aboutWindow(), nullptr);
    const QPointer<QWidget> window = delegate.aboutWindow();
    EXPECT_TRUE(window->isVisible());
    window->close();
    delegate.mainWindow()->perform(Command::About);
    EXPECT_EQ(delegate.aboutWindow(), window);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(AppDelegateTest, TheHistoryHasOneWindow)
{
    delegate.start();
    EXPECT_EQ(delegate.historyWindow(), nullptr);
    delegate.mainWindow()->perform(Command::TrashHistory);
    ASSERT_NE(delegate.historyWindow(), nullptr);
    const QPointer<QWidget> window = &delegate.historyWindow()->window();
    EXPECT_TRUE(window->isVisible());
    window->showMinimized();
    delegate.mainWindow()->perform(Command::TrashHistory);
    EXPECT_EQ(&delegate.historyWindow()->window(), window);
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(AppDelegateTest, TheHistoryIsIndependentOfTheScreens)
{
    delegate.start();
    delegate.mainWindow()->perform(Command::TrashHistory);
    showTree();
    EXPECT_TRUE(delegate.historyWindow()->window().isVisible());
    delegate.mainWindow()->homeSelected();
    EXPECT_TRUE(delegate.historyWindow()->window().isVisible());
}

TEST_F(AppDelegateTest, TheHistoryHasItemsPutBackAndIsReadAfterwards)
{
    delegate.start();
    delegate.showHistory();
    TrashRecord record;
    record.item.from = Url("/data/a", false);
    record.item.number = 5;
    record.bytes = 7;
    emit delegate.historyWindow()->putBackRequested(record);
    ASSERT_EQ(services.treeScreen.workspace.putBacks.size(), 1);
    EXPECT_EQ(services.treeScreen.workspace.putBacks[0].item, record.item);
    history.answer({});
    const int before = history.asked;
    PutBackResult result;
    result.place = Url("/data/a", false);
    EXPECT_TRUE(services.treeScreen.workspace.finishPuttingBack(result));
    EXPECT_EQ(history.asked, before + 1);
}

TEST_F(AppDelegateTest, TheHistoryIsReadAfterAMove)
{
    delegate.start();
    delegate.showHistory();
    history.answer({});
    const int before = history.asked;
    services.treeScreen.trashUndo.itemsMoved({MovedItem{}});
    EXPECT_EQ(history.asked, before + 1);
}

TEST_F(AppDelegateTest, TheHistoryClosesWithTheMainWindow)
{
    delegate.start();
    delegate.mainWindow()->perform(Command::TrashHistory);
    const QPointer<QWidget> window = &delegate.historyWindow()->window();
    delegate.mainWindow()->window().close();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return window.isNull(); }));
}

TEST_F(AppDelegateTest, HelpPagesAreOpenedByTheirEntries)
{
    delegate.start();
    delegate.mainWindow()->perform(Command::Features);
    delegate.mainWindow()->perform(Command::ZoomIn);
    delegate.showHelp(HelpPage::Questions);
    EXPECT_THAT(
        services.treeScreen.workspace.opened, ElementsAre("file:///features", "file:///faq"));
    EXPECT_THAT(services.treeScreen.alert.told, IsEmpty());
}

TEST_F(AppDelegateTest, HelpThatCannotBeShownIsSaidSo)
{
    services.treeScreen.workspace.answer = false;
    delegate.showHelp(HelpPage::Features);
    ASSERT_EQ(services.treeScreen.alert.told.size(), 1U);
    EXPECT_EQ(
        services.treeScreen.alert.told[0].messageText, QStringLiteral("The help cannot be shown"));
}

TEST_F(AppDelegateTest, NobodyIsToldOfHelpWhenTheProgramHasEndedByThen)
{
    services.treeScreen.workspace.answersLater = true;
    auto ended = std::make_unique<AppDelegate>(appServices());
    ended->showHelp(HelpPage::Features);
    ended.reset();
    services.treeScreen.workspace.lateAnswer(false);
    EXPECT_THAT(services.treeScreen.alert.told, IsEmpty());
}

TEST_F(AppDelegateTest, TheLastWindowsEndIsNotTheProgramsByItself)
{
    delegate.start();
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

TEST_F(AppDelegateTest, ClosingTheMainWindowQuitsAlsoWhenAnotherWindowIsOpen)
{
    delegate.start();
    delegate.showPreferences();
    QTimer::singleShot(0, &delegate, [this] { delegate.mainWindow()->window().close(); });
    EXPECT_EQ(QApplication::exec(), 0);
}

/// An archive is being made.
class AppDelegateWhileCompressing : public AppDelegateTest {
protected:
    AppDelegateWhileCompressing()
    {
        delegate.start();
        services.treeScreen.targetsInUse = {"/data/X.zip"};
    }

    /// An end that was asked for twice must not end the next test's event loop.
    void TearDown() override { QCoreApplication::removePostedEvents(qApp, QEvent::MetaCall); }

    void closeAnswering(int button)
    {
        services.treeScreen.alert.answer = Alert::kFirstButton + button;
        delegate.mainWindow()->perform(Command::Quit);
    }

    void endCompression()
    {
        services.treeScreen.targetsInUse.clear();
        emit services.treeScreen.diskChanges.itemCompressed(std::nullopt);
    }

    bool isWindowOpen() const { return delegate.mainWindow()->window().isVisible(); }

    /// Whether the program ends after that of its own accord.
    bool quitsAfter(const std::function<void()>& work)
    {
        QTimer::singleShot(0, &delegate, [this, &work] {
            work();
            giveUpAfter(10);
        });
        return QApplication::exec() == 0;
    }

    /// What the work has queued comes first, and what that queues.
    void giveUpAfter(int turns)
    {
        QMetaObject::invokeMethod(
            &delegate,
            [this, turns] {
                if (turns == 0) {
                    QCoreApplication::exit(1);
                } else {
                    giveUpAfter(turns - 1);
                }
            },
            Qt::QueuedConnection);
    }
};

TEST_F(AppDelegateWhileCompressing, ClosingTheMainWindowAsksFirst)
{
    closeAnswering(2);
    ASSERT_EQ(services.treeScreen.alert.asked.size(), 1U);
    const AlertText& text = services.treeScreen.alert.asked[0];
    EXPECT_EQ(text.messageText, QStringLiteral("An archive is still being made"));
    EXPECT_EQ(
        text.buttons,
        (QStringList{
            QStringLiteral("Finish in Background"),
            QStringLiteral("Stop and Quit"),
            QStringLiteral("Cancel")}));
}

TEST_F(AppDelegateWhileCompressing, WhoeverCancelsKeepsTheWindow)
{
    EXPECT_FALSE(quitsAfter([this] { closeAnswering(2); }));
    EXPECT_TRUE(isWindowOpen());
}

TEST_F(AppDelegateWhileCompressing, StoppingQuits)
{
    EXPECT_TRUE(quitsAfter([this] { closeAnswering(1); }));
}

TEST_F(AppDelegateWhileCompressing, FinishingInTheBackgroundClosesTheWindowAlone)
{
    QWidget compressWindow;
    compressWindow.show();
    EXPECT_FALSE(quitsAfter([this] { closeAnswering(0); }));
    EXPECT_FALSE(isWindowOpen());
    EXPECT_TRUE(compressWindow.isVisible());
}

TEST_F(AppDelegateWhileCompressing, WhatWasFinishedInTheBackgroundQuits)
{
    QWidget compressWindow;
    compressWindow.show();
    EXPECT_TRUE(quitsAfter([this] {
        closeAnswering(0);
        endCompression();
    }));
}

TEST_F(AppDelegateWhileCompressing, OneOfSeveralThatIsFinishedDoesNotQuit)
{
    QWidget compressWindow;
    compressWindow.show();
    EXPECT_FALSE(quitsAfter([this] {
        closeAnswering(0);
        emit services.treeScreen.diskChanges.itemCompressed(std::nullopt);
    }));
}

TEST_F(AppDelegateWhileCompressing, AnotherStartBringsTheWindowBackForGood)
{
    EXPECT_FALSE(quitsAfter([this] {
        closeAnswering(0);
        delegate.openFromElsewhere(Url());
        endCompression();
    }));
    EXPECT_TRUE(isWindowOpen());
}

TEST_F(AppDelegateWhileCompressing, WithTheWindowOpenTheEndOfTheCompressionDoesNotQuit)
{
    EXPECT_FALSE(quitsAfter([this] { endCompression(); }));
}

TEST_F(AppDelegateWhileCompressing, OnceItIsDoneNobodyIsAsked)
{
    endCompression();
    EXPECT_TRUE(quitsAfter([this] { closeAnswering(2); }));
    EXPECT_THAT(services.treeScreen.alert.asked, IsEmpty());
}

} // namespace
} // namespace tessera
