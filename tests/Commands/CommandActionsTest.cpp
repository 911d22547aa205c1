// SPDX-License-Identifier: MIT
#include "Commands/CommandActions.h"

#include "Model/Folder.h"
#include "support/BecomesActive.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <vector>

namespace tessera {
namespace {

class CommandActionsTest : public testing::Test {
protected:
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
    CommandContext context{
        .hasTreeScreen = true,
        .isRootInView = false,
        .selectedFile = folder.get(),
        .folderInView = folder.get()};
    const QString reason = QStringLiteral("A rescan is running already. Wait until it has ended.");
    QMainWindow window;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    CommandActions* actions = new CommandActions(window, [this] { return context; });
    QSignalSpy triggered{actions, &CommandActions::triggered};
};

TEST_F(CommandActionsTest, ADisabledEntrySaysWhyInItsTooltip)
{
    context.rescanObstacle = RescanObstacle::AnotherRescan;
    actions->validate();
    EXPECT_EQ(actions->action(Command::Rescan).toolTip(), reason);
    EXPECT_NE(actions->action(Command::Ignore).toolTip(), reason);
}

TEST_F(CommandActionsTest, AnEntryThatIsEnabledAgainSaysNothingOfTheKind)
{
    context.rescanObstacle = RescanObstacle::AnotherRescan;
    actions->validate();
    context.rescanObstacle = RescanObstacle::None;
    actions->validate();
    EXPECT_NE(actions->action(Command::Rescan).toolTip(), reason);
}

TEST_F(CommandActionsTest, AStatusTipSaysWhatTheCommandDoesOrWhyItIsDisabled)
{
    actions->validate();
    const QAction& rescan = actions->action(Command::Rescan);
    EXPECT_EQ(rescan.statusTip(), helpOf(rowOf(Command::Rescan)));
    context.rescanObstacle = RescanObstacle::AnotherRescan;
    actions->validate();
    EXPECT_EQ(rescan.statusTip(), reason);
}

TEST_F(CommandActionsTest, ANameInAReasonIsNoMarkup)
{
    const auto hostile = makeNode<Folder>("<img src=\"a.png\">");
    context.selectedFile = hostile.get();
    context.rescanObstacle = RescanObstacle::MountPoint;
    actions->validate();
    const QString shown
        = QTextDocumentFragment::fromHtml(actions->action(Command::Rescan).toolTip()).toPlainText();
    EXPECT_TRUE(shown.contains(QStringLiteral("<img src=\"a.png\">")));
    EXPECT_EQ(shown, actions->action(Command::Rescan).statusTip());
}

TEST_F(CommandActionsTest, EachEntryCarriesItsTag)
{
    for (const CommandRow& row : commandTable()) {
        EXPECT_EQ(actions->action(row.command).data().toInt(), row.tag);
    }
}

TEST_F(CommandActionsTest, EachEntrySaysWhatItsCommandDoes)
{
    for (const CommandRow& row : commandTable()) {
        EXPECT_EQ(actions->action(row.command).whatsThis(), helpOf(row));
    }
}

TEST_F(CommandActionsTest, NoTwoCommandsShareAShortcut)
{
    std::set<QKeySequence> seen;
    for (const CommandRow& row : commandTable()) {
        for (const QKeySequence& shortcut : actions->action(row.command).shortcuts()) {
            EXPECT_TRUE(seen.insert(shortcut).second) << shortcut.toString().toStdString();
        }
    }
    EXPECT_FALSE(seen.contains(QKeySequence()));
}

TEST_F(CommandActionsTest, AShortcutTriggersItsCommand)
{
    showActiveWindow();
    const std::vector<std::pair<const char*, Command>> expectations{
        {"Ctrl+O", Command::OpenFolder},     {"Alt+Home", Command::Home},
        {"Ctrl+,", Command::Preferences},    {"Ctrl+Q", Command::Quit},
        {"Ctrl+Return", Command::OpenItem},  {"Ctrl+Shift+O", Command::OpenWith},
        {"Ctrl+C", Command::CopyPath},       {"Shift+F4", Command::OpenTerminal},
        {"Alt+Return", Command::Properties}, {"Ctrl+F5", Command::Reload},
        {"Ctrl+Y", Command::QuickLook},      {"Ctrl+Shift+R", Command::ShowInFinder},
        {"Ctrl+R", Command::Rescan},         {"F5", Command::Rescan},
        {"Ctrl+I", Command::Ignore},         {"Ctrl+Shift+C", Command::Compress},
        {"Ctrl+Del", Command::MoveToTrash},  {"Ctrl++", Command::ZoomIn},
        {"Ctrl+=", Command::ZoomIn},         {"Alt+Down", Command::ZoomIn},
        {"Ctrl+-", Command::ZoomOut},        {"Alt+Up", Command::ZoomOut},
        {"F11", Command::FullScreen},        {"F1", Command::Features},
        {"Ctrl+F1", Command::Questions},     {"Ctrl+Shift+F1", Command::About}};
    for (const auto& [keys, command] : expectations) {
        pressKeys(keys);
        ASSERT_EQ(triggered.size(), 1) << keys;
        EXPECT_EQ(triggered.takeFirst().at(0).value<Command>(), command) << keys;
    }
}

TEST_F(CommandActionsTest, TheShortcutOfADisabledCommandDoesNothing)
{
    showActiveWindow();
    context.rescanObstacle = RescanObstacle::AnotherRescan;
    actions->validate();
    pressKeys("Ctrl+R");
    EXPECT_EQ(triggered.size(), 0);
}

TEST_F(CommandActionsTest, AnEntryWithATitleOfItsOwnIsAsTheActionIs)
{
    const QAction* const entry
        = actions->makeEntry(Command::Compress, QStringLiteral("Compress File"), &window);
    EXPECT_EQ(entry->text(), QStringLiteral("Compress File"));
    EXPECT_EQ(entry->data(), actions->action(Command::Compress).data());
    EXPECT_EQ(entry->whatsThis(), helpOf(rowOf(Command::Compress)));
    EXPECT_TRUE(entry->shortcuts().isEmpty());

    context.selectedFile = nullptr;
    actions->validate();
    EXPECT_FALSE(entry->isEnabled());
    EXPECT_EQ(entry->toolTip(), nothingSelected());
    EXPECT_EQ(entry->statusTip(), nothingSelected());

    context.selectedFile = folder.get();
    actions->validate();
    EXPECT_TRUE(entry->isEnabled());
    EXPECT_EQ(entry->toolTip(), QStringLiteral("Compress File"));
}

TEST_F(CommandActionsTest, AnEntryWithATitleOfItsOwnTriggersTheCommand)
{
    actions->makeEntry(Command::Compress, QStringLiteral("Compress File"), &window)->trigger();
    ASSERT_EQ(triggered.size(), 1);
    EXPECT_EQ(triggered.takeFirst().at(0).value<Command>(), Command::Compress);
}

TEST_F(CommandActionsTest, EachMenuSaysWhetherItShowsTheShortcuts)
{
    QMenu with;
    QMenu without;
    actions->lookAfter(with, CommandActions::Shortcuts::Shown);
    actions->lookAfter(without, CommandActions::Shortcuts::Hidden);
    const QAction& rescan = actions->action(Command::Rescan);
    emit without.aboutToShow();
    EXPECT_FALSE(rescan.isShortcutVisibleInContextMenu());
    emit with.aboutToShow();
    EXPECT_TRUE(rescan.isShortcutVisibleInContextMenu());
}

} // namespace
} // namespace tessera
