// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeMenu.h"

#include "Commands/CommandActions.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QWhatsThis>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace tessera {
namespace {

/// The titles as they are read, in order, "-" for separators.
QStringList titles(const QMenu& menu)
{
    QStringList result;
    for (const QAction* action : menu.actions()) {
        result
            << (action->isSeparator() ? QStringLiteral("-")
                                      : action->text().remove(QLatin1Char('&')));
    }
    return result;
}

QAction* action(const QMenu& menu, const QString& title)
{
    return menu.actions().value(titles(menu).indexOf(title));
}

QImage pictureOf(QMenu& menu)
{
    menu.resize(menu.sizeHint());
    return menu.grab().toImage();
}

class TreeMenu : public testing::Test {
protected:
    /// As it is when it has opened.
    template <typename Node>
    std::unique_ptr<QMenu> makeMenu()
    {
        node = makeNode<Node>("a");
        context = {false, true, false, node.get(), inView.get()};
        auto menu = makeTreeMenu(*node, *actions);
        emit menu->aboutToShow();
        return menu;
    }

    std::unique_ptr<File> node;
    std::unique_ptr<Folder> inView = makeNode<Folder>("<img src=\"a.png\">");
    CommandContext context;
    QWidget window;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    CommandActions* actions = new CommandActions(window, [this] { return context; });
    QSignalSpy triggered{actions, &CommandActions::triggered};
};

TEST_F(TreeMenu, OfAFolder)
{
    const auto menu = makeMenu<Folder>();
    EXPECT_EQ(menu->title(), QStringLiteral("Contextual Menu"));
    EXPECT_EQ(
        titles(*menu).join(QLatin1Char('|')),
        QStringLiteral("Open|Open With…|Quick Look|Show in Finder|-|Copy Path|Open Terminal Here|"
                       "-|Zoom In|Rescan|Ignore|-|Compress Folder|Add to Basket|Move to Trash|-|"
                       "Properties"));
}

TEST_F(TreeMenu, OfADocument)
{
    const auto menu = makeMenu<Document>();
    EXPECT_EQ(menu->title(), QStringLiteral("Contextual Menu"));
    EXPECT_EQ(
        titles(*menu).join(QLatin1Char('|')),
        QStringLiteral("Open|Open With…|Quick Look|Show in Finder|-|Copy Path|Open Terminal Here|"
                       "-|Compress File|Add to Basket|Move to Trash|-|Properties"));
}

TEST_F(TreeMenu, IsNoneForFreeSpace)
{
    EXPECT_EQ(makeTreeMenu(*makeNode<FreeSpace>({}), *actions), nullptr);
}

TEST_F(TreeMenu, ShowsTheActionsThemselves)
{
    const auto menu = makeMenu<Folder>();
    EXPECT_EQ(action(*menu, QStringLiteral("Rescan")), &actions->action(Command::Rescan));
    EXPECT_EQ(action(*menu, QStringLiteral("Zoom In")), &actions->action(Command::ZoomIn));
}

TEST_F(TreeMenu, OffersToTakeOutAgainWhatIsInTheBasket)
{
    const auto menu = makeMenu<Document>();
    context.isInBasket = true;
    emit menu->aboutToShow();
    EXPECT_TRUE(titles(*menu).contains(QStringLiteral("Take Out of Basket")));
    EXPECT_FALSE(titles(*menu).contains(QStringLiteral("Add to Basket")));
}

TEST_F(TreeMenu, HasNoShortcuts)
{
    const auto menu = makeMenu<Folder>();
    for (const QAction* entry : menu->actions()) {
        EXPECT_TRUE(entry->shortcut().isEmpty() || !entry->isShortcutVisibleInContextMenu());
    }
}

TEST_F(TreeMenu, LooksAsIfItsActionsHadNeitherShortcutsNorMnemonics)
{
    const auto menu = makeMenu<Folder>();
    QMenu plain;
    for (const QString& title : titles(*menu)) {
        if (title == QLatin1Char('-')) {
            plain.addSeparator();
        } else {
            plain.addAction(title);
        }
    }
    EXPECT_EQ(menu->sizeHint(), plain.sizeHint());
    EXPECT_EQ(pictureOf(*menu), pictureOf(plain));
}

TEST_F(TreeMenu, DoesNotHeedMnemonics)
{
    const auto menu = makeMenu<Folder>();
    menu->popup({});
    QTest::keyClick(menu.get(), Qt::Key_T);
    EXPECT_EQ(triggered.size(), 0);
    EXPECT_EQ(menu->activeAction(), nullptr);
    QTest::keyClick(menu.get(), Qt::Key_Up);
    EXPECT_EQ(menu->activeAction(), action(*menu, QStringLiteral("Properties")));
    menu->close();
}

TEST_F(TreeMenu, WithoutATreeIsDisabled)
{
    const auto menu = makeMenu<Document>();
    context = {};
    emit menu->aboutToShow();
    EXPECT_FALSE(action(*menu, QStringLiteral("Move to Trash"))->isEnabled());
    EXPECT_FALSE(action(*menu, QStringLiteral("Compress File"))->isEnabled());
}

TEST_F(TreeMenu, EnablesWhatCanBeDoneWhenItOpens)
{
    const auto menu = makeMenu<Folder>();
    context.selectedFile = nullptr;
    emit menu->aboutToShow();
    EXPECT_FALSE(action(*menu, QStringLiteral("Zoom In"))->isEnabled());
    EXPECT_FALSE(action(*menu, QStringLiteral("Compress Folder"))->isEnabled());
    EXPECT_TRUE(action(*menu, QStringLiteral("Rescan"))->isEnabled());
}

TEST_F(TreeMenu, ADisabledEntrySaysWhyInItsTooltip)
{
    const auto menu = makeMenu<Folder>();
    context.selectedFile = nullptr;
    emit menu->aboutToShow();
    EXPECT_TRUE(menu->toolTipsVisible());
    EXPECT_EQ(
        action(*menu, QStringLiteral("Zoom In"))->toolTip(),
        QStringLiteral("Select a folder first."));
    EXPECT_EQ(action(*menu, QStringLiteral("Compress Folder"))->toolTip(), nothingSelected());
}

TEST_F(TreeMenu, ANameInAReasonIsNoMarkup)
{
    const auto menu = makeMenu<Folder>();
    context.selectedFile = nullptr;
    context.rescanObstacle = RescanObstacle::MountPoint;
    emit menu->aboutToShow();
    const QString tooltip = action(*menu, QStringLiteral("Rescan"))->toolTip();
    EXPECT_TRUE(QTextDocumentFragment::fromHtml(tooltip).toPlainText().contains(
        QStringLiteral("<img src=\"a.png\">")));
}

bool isExplanationShown()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
        return widget->inherits("QWhatsThat") && widget->isVisible();
    });
}

TEST_F(TreeMenu, F1SaysWhatAnEntryDoesAndDoesNotDoIt)
{
    const auto menu = makeMenu<Folder>();
    menu->popup({});
    QTest::keyClick(menu.get(), Qt::Key_Down);
    QTest::keyClick(menu.get(), Qt::Key_F1);
    EXPECT_TRUE(isExplanationShown());
    EXPECT_EQ(triggered.size(), 0);
    QWhatsThis::hideText();
}

TEST_F(TreeMenu, TriggersTheCommandsOfItsEntries)
{
    const std::vector<std::pair<QString, Command>> expected{
        {QStringLiteral("Quick Look"), Command::QuickLook},
        {QStringLiteral("Show in Finder"), Command::ShowInFinder},
        {QStringLiteral("Rescan"), Command::Rescan},
        {QStringLiteral("Ignore"), Command::Ignore},
        {QStringLiteral("Compress Folder"), Command::Compress},
        {QStringLiteral("Move to Trash"), Command::MoveToTrash},
    };
    const auto menu = makeMenu<Folder>();
    for (const auto& [title, command] : expected) {
        action(*menu, title)->trigger();
        ASSERT_EQ(triggered.size(), 1);
        EXPECT_EQ(triggered.takeFirst().at(0).value<Command>(), command);
    }
}

} // namespace
} // namespace tessera
