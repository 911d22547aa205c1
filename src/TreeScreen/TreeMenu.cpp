// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeMenu.h"

#include "Base/DisplayText.h"
#include "Model/File.h"
#include "TreeScreen/TreeCommand.h"

#include <QCoreApplication>
#include <QMenu>

#include <array>
#include <span>

namespace tessera {

namespace {

constexpr const char* kContext = "TreeMenu";

/// A null title is a separator.
struct Entry {
    const char* title;
    TreeCommand command;
};

constexpr Entry kSeparator{nullptr, TreeCommand::QuickLook};

constexpr std::array kFolderEntries{
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Quick Look"), TreeCommand::QuickLook},
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Show in Finder"), TreeCommand::ShowInFinder},
    kSeparator,
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Zoom In"), TreeCommand::ZoomIn},
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Rescan"), TreeCommand::Rescan},
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Ignore"), TreeCommand::Ignore},
    kSeparator,
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Compress Folder"), TreeCommand::Compress},
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Move to Trash"), TreeCommand::MoveToTrash},
};

constexpr std::array kDocumentEntries{
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Quick Look"), TreeCommand::QuickLook},
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Show in Finder"), TreeCommand::ShowInFinder},
    kSeparator,
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Compress File"), TreeCommand::Compress},
    Entry{QT_TRANSLATE_NOOP("TreeMenu", "Move to Trash"), TreeCommand::MoveToTrash},
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

void addEntry(QMenu& menu, const Entry& entry, TreeCommandTarget* target)
{
    if (entry.title == nullptr) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(QCoreApplication::translate(kContext, entry.title));
    action->setEnabled(target != nullptr && target->validate(entry.command));
    if (target != nullptr) {
        action->setToolTip(plainTooltip(target->whyNot(entry.command)));
        QObject::connect(action, &QAction::triggered, &menu, [target, command = entry.command] {
            target->perform(command);
        });
    }
}

} // namespace

std::unique_ptr<QMenu> makeTreeMenu(const File& item, TreeCommandTarget* target)
{
    const std::span<const Entry> entries = entriesFor(item);
    if (entries.empty()) {
        return nullptr;
    }
    auto menu = std::make_unique<QMenu>(
        QCoreApplication::translate(kContext, QT_TRANSLATE_NOOP("TreeMenu", "Contextual Menu")));
    // Of disabled entries, whose tooltip says why they are.
    menu->setToolTipsVisible(true);
    for (const Entry& entry : entries) {
        addEntry(*menu, entry, target);
    }
    return menu;
}

} // namespace tessera
