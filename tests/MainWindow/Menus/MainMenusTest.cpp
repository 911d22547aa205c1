// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MainMenus.h"

#include "Commands/CommandActions.h"
#include "Model/Folder.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

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

class MainMenusTest : public testing::Test {
protected:
    MainMenusTest() { fillMenuBar(*window.menuBar(), *actions); }

    const QMenu& menu(int index) const { return *window.menuBar()->actions().at(index)->menu(); }

    std::unique_ptr<Folder> folder = makeNode<Folder>("docs");
    /// In which all is enabled.
    CommandContext context{false, true, false, folder.get()};
    QMainWindow window;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    CommandActions* actions = new CommandActions(window, [this] { return context; });
};

TEST_F(MainMenusTest, TheMenuBarHoldsEveryCommand)
{
    EXPECT_THAT(
        titles(menu(0)),
        ElementsAre(
            "&Open Folder…", "Choose &Another Disk or Folder", "-", "&Preferences…", "-", "&Quit"));
    EXPECT_THAT(titles(menu(1)), ElementsAre("&Undo", "&Redo"));
    EXPECT_THAT(
        titles(menu(3)),
        ElementsAre(
            "Zoom &In",
            "Zoom &Out",
            "-",
            "&Reload",
            "-",
            "&Basket",
            "Where the &Space Is",
            "&History",
            "-",
            "&Full Screen",
            "Status &Line"));
    EXPECT_THAT(
        titles(menu(4)),
        ElementsAre("What Tessera &Does", "Frequently Asked &Questions", "-", "&About Tessera"));
}

TEST_F(MainMenusTest, TheItemMenuHoldsAllThatIsDoneWithAnItem)
{
    EXPECT_THAT(
        titles(menu(2)),
        ElementsAre(
            "&Open",
            "Open &With…",
            "&Quick Look",
            "&Show in Finder",
            "-",
            "Copy &Path",
            "Open Ter&minal Here",
            "-",
            "&Rescan",
            "&Ignore",
            "-",
            "&Compress",
            "Add to &Basket",
            "Move to &Trash",
            "-",
            "Prop&erties"));
}

TEST_F(MainMenusTest, TheTooltipsAreShownInTheMenus)
{
    EXPECT_TRUE(menu(2).toolTipsVisible());
    EXPECT_TRUE(menu(3).toolTipsVisible());
}

TEST_F(MainMenusTest, NoTwoEntriesOfAMenuShareAMnemonic)
{
    for (int i = 0; i < 5; ++i) {
        std::set<QKeySequence> seen;
        for (const QAction* action : menu(i).actions()) {
            if (!action->isSeparator()) {
                EXPECT_TRUE(seen.insert(QKeySequence::mnemonic(action->text())).second)
                    << action->text().toStdString();
            }
        }
    }
}

TEST_F(MainMenusTest, AMenuValidatesItsEntriesWhenItOpens)
{
    context.isRootInView = true;
    emit window.menuBar()->actions().at(3)->menu()->aboutToShow();
    EXPECT_FALSE(actions->action(Command::ZoomOut).isEnabled());
    EXPECT_TRUE(actions->action(Command::ZoomIn).isEnabled());
}

TEST_F(MainMenusTest, AnotherMenuMayHoldTheSameEntries)
{
    QMenu menuOfAButton;
    fillMenu(menuOfAButton, MainMenu::Item, *actions);
    EXPECT_EQ(titles(menuOfAButton), titles(menu(2)));
}

} // namespace
} // namespace tessera
