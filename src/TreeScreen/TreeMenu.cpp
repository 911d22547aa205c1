// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeMenu.h"

#include "Base/Mnemonic.h"
#include "Commands/CommandActions.h"
#include "Commands/CommandTable.h"
#include "Model/File.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionMenuItem>

#include <array>
#include <optional>
#include <span>

namespace tessera {

namespace {

using Entry = std::optional<Command>;

constexpr Entry kSeparator;

constexpr std::array kFolderEntries{
    Entry(Command::OpenItem),
    Entry(Command::OpenWith),
    Entry(Command::QuickLook),
    Entry(Command::ShowInFinder),
    kSeparator,
    Entry(Command::CopyPath),
    Entry(Command::OpenTerminal),
    kSeparator,
    Entry(Command::ZoomIn),
    Entry(Command::Rescan),
    Entry(Command::Ignore),
    kSeparator,
    Entry(Command::Compress),
    Entry(Command::AddToBasket),
    Entry(Command::MoveToTrash),
    kSeparator,
    Entry(Command::Properties),
};

constexpr std::array kDocumentEntries{
    Entry(Command::OpenItem),
    Entry(Command::OpenWith),
    Entry(Command::QuickLook),
    Entry(Command::ShowInFinder),
    kSeparator,
    Entry(Command::CopyPath),
    Entry(Command::OpenTerminal),
    kSeparator,
    Entry(Command::Compress),
    Entry(Command::AddToBasket),
    Entry(Command::MoveToTrash),
    kSeparator,
    Entry(Command::Properties),
};

std::span<const Entry> entriesFor(const File& item)
{
    if (item.isFolder()) {
        return kFolderEntries;
    }
    if (item.type() == NodeType::Document) {
        return kDocumentEntries;
    }
    return {};
}

/// Neither shows nor heeds the actions' mnemonics. They are those of the menu bar's menus, from
/// several of which the entries come, so that two of them may share one.
class ItemMenu final : public QMenu {
public:
    using QMenu::QMenu;

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override
    {
        QMenu::initStyleOption(option, action);
        option->text = withoutMnemonic(option->text);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const QString text = event->text();
        if (text.isEmpty() || !text.front().isLetterOrNumber()) {
            QMenu::keyPressEvent(event);
        }
    }
};

QAction* entryFor(Command command, const File& item, const CommandActions& actions, QMenu& menu)
{
    const CommandRow& row = rowOf(command);
    const char* const ownTitle = item.isFolder() ? row.folderTitle : row.documentTitle;
    if (ownTitle == nullptr) {
        return &actions.action(command);
    }
    const QString title = item.isFolder() ? titleForFolder(row) : titleForDocument(row);
    return actions.makeEntry(command, title, &menu);
}

} // namespace

std::unique_ptr<QMenu> makeTreeMenu(const File& item, const CommandActions& actions)
{
    const std::span<const Entry> entries = entriesFor(item);
    if (entries.empty()) {
        return nullptr;
    }
    auto menu
        = std::make_unique<ItemMenu>(QCoreApplication::translate("TreeMenu", "Contextual Menu"));
    for (const Entry& entry : entries) {
        if (entry) {
            menu->addAction(entryFor(*entry, item, actions, *menu));
        } else {
            menu->addSeparator();
        }
    }
    actions.lookAfter(*menu, CommandActions::Shortcuts::Hidden);
    return menu;
}

} // namespace tessera
