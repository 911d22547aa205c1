// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MainActions.h"

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

#include <map>
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

    std::set<int> disabledTags;
    QString reason = QStringLiteral("Not now."); ///< for all
    QMainWindow window;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    MainActions* actions = new MainActions(
        window,
        [this](int tag) { return !disabledTags.contains(tag); },
        [this](MainCommand) { return reason; });
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
    disabledTags = {35};
    actions->validate();
    EXPECT_EQ(actions->action(MainCommand::Rescan).toolTip(), QStringLiteral("Not now."));
    EXPECT_NE(actions->action(MainCommand::Ignore).toolTip(), QStringLiteral("Not now."));
}

TEST_F(MainActionsTest, AnEntryThatIsEnabledAgainSaysNothingOfTheKind)
{
    disabledTags = {35};
    actions->validate();
    disabledTags.clear();
    actions->validate();
    EXPECT_NE(actions->action(MainCommand::Rescan).toolTip(), QStringLiteral("Not now."));
}

TEST_F(MainActionsTest, TheTooltipsAreShownInTheMenus)
{
    EXPECT_TRUE(menu(1).toolTipsVisible());
    EXPECT_TRUE(menu(2).toolTipsVisible());
}

TEST_F(MainActionsTest, ANameInAReasonIsNoMarkup)
{
    disabledTags = {35};
    reason = QStringLiteral("A disk is mounted at '<img src=\"/a.png\">'.");
    actions->validate();
    EXPECT_EQ(
        QTextDocumentFragment::fromHtml(actions->action(MainCommand::Rescan).toolTip())
            .toPlainText(),
        reason);
}

TEST_F(MainActionsTest, EachCommandHasItsTag)
{
    const std::map<MainCommand, int> tags{
        {MainCommand::OpenFolder, 21},
        {MainCommand::Home, 41},
        {MainCommand::Preferences, 0},
        {MainCommand::Quit, 0},
        {MainCommand::QuickLook, 33},
        {MainCommand::ShowInFinder, 34},
        {MainCommand::Rescan, 35},
        {MainCommand::Ignore, 36},
        {MainCommand::Compress, 37},
        {MainCommand::MoveToTrash, 38},
        {MainCommand::ZoomIn, 32},
        {MainCommand::ZoomOut, 31},
        {MainCommand::FullScreen, 0},
        {MainCommand::Features, 62},
        {MainCommand::Questions, 64}};
    ASSERT_EQ(tags.size(), actionTable().size());
    for (const auto& [command, tag] : tags) {
        EXPECT_EQ(actions->action(command).data().toInt(), tag);
    }
}

TEST_F(MainActionsTest, NoTwoCommandsShareAShortcut)
{
    std::set<QKeySequence> seen;
    for (const ActionRow& row : actionTable()) {
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
    const std::vector<std::pair<const char*, MainCommand>> expectations{
        {"Ctrl+O", MainCommand::OpenFolder},
        {"Alt+Home", MainCommand::Home},
        {"Ctrl+,", MainCommand::Preferences},
        {"Ctrl+Q", MainCommand::Quit},
        {"Ctrl+Y", MainCommand::QuickLook},
        {"Ctrl+Shift+R", MainCommand::ShowInFinder},
        {"Ctrl+R", MainCommand::Rescan},
        {"F5", MainCommand::Rescan},
        {"Ctrl+I", MainCommand::Ignore},
        {"Ctrl+Shift+C", MainCommand::Compress},
        {"Ctrl+Del", MainCommand::MoveToTrash},
        {"Ctrl++", MainCommand::ZoomIn},
        {"Ctrl+=", MainCommand::ZoomIn},
        {"Alt+Down", MainCommand::ZoomIn},
        {"Ctrl+-", MainCommand::ZoomOut},
        {"Alt+Up", MainCommand::ZoomOut},
        {"F11", MainCommand::FullScreen},
        {"F1", MainCommand::Features},
        {"Ctrl+F1", MainCommand::Questions}};
    for (const auto& [keys, command] : expectations) {
        pressKeys(keys);
        ASSERT_EQ(triggered.size(), 1) << keys;
        EXPECT_EQ(triggered.takeFirst().at(0).value<MainCommand>(), command) << keys;
    }
}

TEST_F(MainActionsTest, TheShortcutOfADisabledCommandDoesNothing)
{
    showActiveWindow();
    disabledTags = {35};
    actions->validate();
    pressKeys("Ctrl+R");
    EXPECT_EQ(triggered.size(), 0);
}

TEST_F(MainActionsTest, AMenuValidatesItsEntriesWhenItOpens)
{
    disabledTags = {31, 62};
    emit window.menuBar()->actions().at(2)->menu()->aboutToShow();
    EXPECT_FALSE(actions->action(MainCommand::ZoomOut).isEnabled());
    EXPECT_TRUE(actions->action(MainCommand::ZoomIn).isEnabled());
}

TEST_F(MainActionsTest, AnotherMenuMayHoldTheSameEntries)
{
    QMenu menuOfAButton;
    actions->fill(menuOfAButton, MainMenu::Item);
    EXPECT_EQ(titles(menuOfAButton), titles(menu(1)));
}

} // namespace
} // namespace tessera
