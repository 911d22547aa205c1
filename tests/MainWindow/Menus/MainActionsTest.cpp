// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MainActions.h"

#include "Model/Folder.h"
#include "support/BecomesActive.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;

std::vector<std::string> titles(const QMenu& menu)
{
    std::vector<std::string> result;
    for (const QAction* action : menu.actions()) {
        result.push_back(action->isSeparator() ? "-" : action->text().toStdString());
    }
    return result;
}

class MainActionsTest : public testing::Test {
protected:
    MainActionsTest() { actions->fill(*window.menuBar()); }

    const QMenu& menu(int index) const { return *window.menuBar()->actions().at(index)->menu(); }

    void pressKeys(const char* keys)
    {
        QTest::keySequence(&window, QKeySequence::fromString(QString::fromLatin1(keys)));
    }

    void showActiveWindow()
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(test::becomesActive(window));
    }

    std::unique_ptr<Folder> folder = makeNode<Folder>("docs");
    /// In which all is enabled.
    CommandContext context{false, true, false, folder.get(), true};
    QString reason = QStringLiteral("Not now."); ///< for all
    QMainWindow window;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    MainActions* actions = new MainActions(
        window, [this] { return context; }, [this](Command) { return reason; });
    QSignalSpy triggered{actions, &MainActions::triggered};
};

TEST_F(MainActionsTest, TheMenuBarHoldsEveryCommand)
{
    EXPECT_THAT(
        titles(menu(0)),
        ElementsAre(
            "&Open Folder…", "Choose &Another Disk or Folder", "-", "&Preferences…", "-", "&Quit"));
    EXPECT_THAT(
        titles(menu(1)),
        ElementsAre(
            "&Quick Look",
            "&Show in Finder",
            "-",
            "&Rescan",
            "&Ignore",
            "-",
            "&Compress",
            "Move to &Trash"));
    EXPECT_THAT(titles(menu(2)), ElementsAre("Zoom &In", "Zoom &Out", "-", "&Full Screen"));
    EXPECT_THAT(titles(menu(3)), ElementsAre("What Tessera &Does", "Frequently Asked &Questions"));
}

TEST_F(MainActionsTest, ADisabledEntrySaysWhyInItsTooltip)
{
    context.canRescan = false;
    actions->validate();
    EXPECT_EQ(actions->action(Command::Rescan).toolTip(), QStringLiteral("Not now."));
    EXPECT_NE(actions->action(Command::Ignore).toolTip(), QStringLiteral("Not now."));
}

TEST_F(MainActionsTest, AnEntryThatIsEnabledAgainSaysNothingOfTheKind)
{
    context.canRescan = false;
    actions->validate();
    context.canRescan = true;
    actions->validate();
    EXPECT_NE(actions->action(Command::Rescan).toolTip(), QStringLiteral("Not now."));
}

TEST_F(MainActionsTest, TheTooltipsAreShownInTheMenus)
{
    EXPECT_TRUE(menu(1).toolTipsVisible());
    EXPECT_TRUE(menu(2).toolTipsVisible());
}

TEST_F(MainActionsTest, ANameInAReasonIsNoMarkup)
{
    context.canRescan = false;
    reason = QStringLiteral("A disk is mounted at '<img src=\"/a.png\">'.");
    actions->validate();
    EXPECT_EQ(
        QTextDocumentFragment::fromHtml(actions->action(Command::Rescan).toolTip()).toPlainText(),
        reason);
}

TEST_F(MainActionsTest, EachEntryCarriesItsTag)
{
    for (const CommandRow& row : commandTable()) {
        EXPECT_EQ(actions->action(row.command).data().toInt(), row.tag);
    }
}

TEST_F(MainActionsTest, NoTwoCommandsShareAShortcut)
{
    std::set<QKeySequence> seen;
    for (const CommandRow& row : commandTable()) {
        for (const QKeySequence& shortcut : actions->action(row.command).shortcuts()) {
            EXPECT_TRUE(seen.insert(shortcut).second) << shortcut.toString().toStdString();
        }
    }
    EXPECT_FALSE(seen.contains(QKeySequence()));
}

TEST_F(MainActionsTest, NoTwoEntriesOfAMenuShareAMnemonic)
{
    for (int i = 0; i < 4; ++i) {
        std::set<QKeySequence> seen;
        for (const QAction* action : menu(i).actions()) {
            if (!action->isSeparator()) {
                EXPECT_TRUE(seen.insert(QKeySequence::mnemonic(action->text())).second)
                    << action->text().toStdString();
            }
        }
    }
}

TEST_F(MainActionsTest, AShortcutTriggersItsCommand)
{
    showActiveWindow();
    const std::vector<std::pair<const char*, Command>> expectations{
        {"Ctrl+O", Command::OpenFolder},
        {"Alt+Home", Command::Home},
        {"Ctrl+,", Command::Preferences},
        {"Ctrl+Q", Command::Quit},
        {"Ctrl+Y", Command::QuickLook},
        {"Ctrl+Shift+R", Command::ShowInFinder},
        {"Ctrl+R", Command::Rescan},
        {"F5", Command::Rescan},
        {"Ctrl+I", Command::Ignore},
        {"Ctrl+Shift+C", Command::Compress},
        {"Ctrl+Del", Command::MoveToTrash},
        {"Ctrl++", Command::ZoomIn},
        {"Ctrl+=", Command::ZoomIn},
        {"Alt+Down", Command::ZoomIn},
        {"Ctrl+-", Command::ZoomOut},
        {"Alt+Up", Command::ZoomOut},
        {"F11", Command::FullScreen},
        {"F1", Command::Features},
        {"Ctrl+F1", Command::Questions}};
    for (const auto& [keys, command] : expectations) {
        pressKeys(keys);
        ASSERT_EQ(triggered.size(), 1) << keys;
        EXPECT_EQ(triggered.takeFirst().at(0).value<Command>(), command) << keys;
    }
}

TEST_F(MainActionsTest, TheShortcutOfADisabledCommandDoesNothing)
{
    showActiveWindow();
    context.canRescan = false;
    actions->validate();
    pressKeys("Ctrl+R");
    EXPECT_EQ(triggered.size(), 0);
}

TEST_F(MainActionsTest, AMenuValidatesItsEntriesWhenItOpens)
{
    context.isRootInView = true;
    emit window.menuBar()->actions().at(2)->menu()->aboutToShow();
    EXPECT_FALSE(actions->action(Command::ZoomOut).isEnabled());
    EXPECT_TRUE(actions->action(Command::ZoomIn).isEnabled());
}

TEST_F(MainActionsTest, AnotherMenuMayHoldTheSameEntries)
{
    QMenu menuOfAButton;
    actions->fill(menuOfAButton, MainMenu::Item);
    EXPECT_EQ(titles(menuOfAButton), titles(menu(1)));
}

} // namespace
} // namespace tessera
