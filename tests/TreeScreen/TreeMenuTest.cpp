// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeMenu.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "TreeScreen/TreeCommandTarget.h"

#include <QMenu>
#include <QTextDocumentFragment>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tessera {
namespace {

/// Allows all commands but one, and remembers the last one performed.
class FakeTarget final : public TreeCommandTarget {
public:
    bool validate(Command command) const override { return command != Command::ZoomIn; }
    QString whyNot(Command command) const override
    {
        return validate(command) ? QString() : reason;
    }
    void perform(Command command) override { performed = command; }

    QString reason = QStringLiteral("Not now.");
    std::optional<Command> performed;
};

/// The titles in order, "-" for separators.
QStringList titles(const QMenu& menu)
{
    QStringList result;
    for (const QAction* action : menu.actions()) {
        result << (action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return result;
}

QAction* action(const QMenu& menu, const QString& title)
{
    return menu.actions().value(titles(menu).indexOf(title));
}

TEST(TreeMenu, OfAFolder)
{
    const auto menu = makeTreeMenu(*makeNode<Folder>("a"), nullptr);
    EXPECT_EQ(menu->title(), QStringLiteral("Contextual Menu"));
    EXPECT_EQ(
        titles(*menu).join(QLatin1Char('|')),
        QStringLiteral("Quick Look|Show in Finder|-|Zoom In|Rescan|Ignore|-|Compress Folder|"
                       "Move to Trash"));
}

TEST(TreeMenu, OfADocument)
{
    const auto menu = makeTreeMenu(*makeNode<Document>("a"), nullptr);
    EXPECT_EQ(menu->title(), QStringLiteral("Contextual Menu"));
    EXPECT_EQ(
        titles(*menu).join(QLatin1Char('|')),
        QStringLiteral("Quick Look|Show in Finder|-|Compress File|Move to Trash"));
}

TEST(TreeMenu, IsNoneForFreeSpace)
{
    EXPECT_EQ(makeTreeMenu(*makeNode<FreeSpace>({}), nullptr), nullptr);
}

TEST(TreeMenu, HasNoShortcuts)
{
    const auto menu = makeTreeMenu(*makeNode<Folder>("a"), nullptr);
    for (const QAction* entry : menu->actions()) {
        EXPECT_TRUE(entry->shortcut().isEmpty());
    }
}

TEST(TreeMenu, WithoutATargetIsDisabled)
{
    const auto menu = makeTreeMenu(*makeNode<Document>("a"), nullptr);
    EXPECT_FALSE(action(*menu, QStringLiteral("Move to Trash"))->isEnabled());
}

TEST(TreeMenu, EnablesWhatItsTargetValidates)
{
    FakeTarget target;
    const auto menu = makeTreeMenu(*makeNode<Folder>("a"), &target);
    EXPECT_FALSE(action(*menu, QStringLiteral("Zoom In"))->isEnabled());
    EXPECT_TRUE(action(*menu, QStringLiteral("Rescan"))->isEnabled());
}

TEST(TreeMenu, ADisabledEntrySaysWhyInItsTooltip)
{
    FakeTarget target;
    const auto menu = makeTreeMenu(*makeNode<Folder>("a"), &target);
    EXPECT_TRUE(menu->toolTipsVisible());
    EXPECT_EQ(action(*menu, QStringLiteral("Zoom In"))->toolTip(), QStringLiteral("Not now."));
}

TEST(TreeMenu, ANameInAReasonIsNoMarkup)
{
    FakeTarget target;
    target.reason = QStringLiteral("A disk is mounted at '<img src=\"/a.png\">'.");
    const auto menu = makeTreeMenu(*makeNode<Folder>("a"), &target);
    EXPECT_EQ(
        QTextDocumentFragment::fromHtml(action(*menu, QStringLiteral("Zoom In"))->toolTip())
            .toPlainText(),
        target.reason);
}

TEST(TreeMenu, PerformsTheCommandsOfItsEntries)
{
    const std::vector<std::pair<QString, Command>> expected{
        {QStringLiteral("Quick Look"), Command::QuickLook},
        {QStringLiteral("Show in Finder"), Command::ShowInFinder},
        {QStringLiteral("Rescan"), Command::Rescan},
        {QStringLiteral("Ignore"), Command::Ignore},
        {QStringLiteral("Compress Folder"), Command::Compress},
        {QStringLiteral("Move to Trash"), Command::MoveToTrash},
    };
    FakeTarget target;
    const auto menu = makeTreeMenu(*makeNode<Folder>("a"), &target);
    for (const auto& [title, command] : expected) {
        action(*menu, title)->trigger();
        EXPECT_EQ(target.performed, command);
    }
}

} // namespace
} // namespace tessera
