// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeMenu.h"

#include "Commands/CommandEntry.h"
#include "Commands/CommandTable.h"
#include "Model/File.h"
#include "TreeScreen/TreeCommandTarget.h"

#include <QCoreApplication>
#include <QMenu>

#include <array>
#include <optional>
#include <span>

namespace tessera {

namespace {

using Entry = std::optional<Command>;

constexpr Entry kSeparator;

constexpr std::array kFolderEntries{
    Entry(Command::QuickLook),
    Entry(Command::ShowInFinder),
    kSeparator,
    Entry(Command::ZoomIn),
    Entry(Command::Rescan),
    Entry(Command::Ignore),
    kSeparator,
    Entry(Command::Compress),
    Entry(Command::MoveToTrash),
};

constexpr std::array kDocumentEntries{
    Entry(Command::QuickLook),
    Entry(Command::ShowInFinder),
    kSeparator,
    Entry(Command::Compress),
    Entry(Command::MoveToTrash),
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

void addEntry(QMenu& menu, Command command, const File& item, TreeCommandTarget* target)
{
    const CommandRow& row = rowOf(command);
    QAction* const entry = makeCommandEntry(
        row, item.isFolder() ? titleForFolder(row) : titleForDocument(row), &menu);
    menu.addAction(entry);
    if (target == nullptr) {
        entry->setEnabled(false);
        return;
    }
    enableCommandEntry(*entry, target->validate(command), target->whyNot(command));
    QObject::connect(
        entry, &QAction::triggered, &menu, [target, command] { target->perform(command); });
}

} // namespace

std::unique_ptr<QMenu> makeTreeMenu(const File& item, TreeCommandTarget* target)
{
    const std::span<const Entry> entries = entriesFor(item);
    if (entries.empty()) {
        return nullptr;
    }
    auto menu = std::make_unique<QMenu>(QCoreApplication::translate("TreeMenu", "Contextual Menu"));
    // Of disabled entries, whose tooltip says why they are.
    menu->setToolTipsVisible(true);
    for (const Entry& entry : entries) {
        if (entry) {
            addEntry(*menu, *entry, item, target);
        } else {
            menu->addSeparator();
        }
    }
    return menu;
}

} // namespace tessera
