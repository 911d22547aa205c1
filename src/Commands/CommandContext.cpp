// SPDX-License-Identifier: MIT
#include "Commands/CommandContext.h"

#include "Model/File.h"
#include "Model/NodeLookup.h"

namespace tessera {

namespace {

bool isEnabledFor(const File& selected, Command command)
{
    switch (command) {
    case Command::ZoomIn:
    case Command::Ignore:
        return selected.isFolder();
    case Command::OpenItem:
    case Command::OpenWith:
    case Command::CopyPath:
    case Command::OpenTerminal:
    case Command::Compress:
    case Command::AddToBasket:
    case Command::MoveToTrash:
    case Command::Properties:
        return isItem(selected);
    default:
        return true;
    }
}

} // namespace

bool isEnabled(Command command, const CommandContext& context)
{
    const File* const selected = context.hasTreeScreen ? context.selectedFile : nullptr;
    switch (command) {
    case Command::Home:
        return !context.hasHomeScreen;
    case Command::ZoomOut:
        return context.hasTreeScreen && !context.isRootInView;
    case Command::Rescan:
        return context.hasTreeScreen && context.canRescan;
    case Command::Reload:
        return context.canReload;
    case Command::CopyPath:
    case Command::OpenTerminal:
        // With nothing selected they are about the folder in view.
        return context.hasTreeScreen && (selected == nullptr || isEnabledFor(*selected, command));
    case Command::SpaceLedger:
        // An open panel stays for the tree of a folder, and can be closed.
        return context.hasTreeScreen && (context.isDiskScanned || context.isLedgerOpen);
    case Command::Basket:
    case Command::StatusLine:
        return context.hasTreeScreen;
    case Command::Undo:
        return !context.undoTitle.isEmpty();
    case Command::Redo:
        return !context.redoTitle.isEmpty();
    case Command::OpenFolder:
    case Command::Preferences:
    case Command::Quit:
    case Command::FullScreen:
    case Command::TrashHistory:
    case Command::Features:
    case Command::Questions:
    case Command::About:
        return true;
    default:
        return selected != nullptr && isEnabledFor(*selected, command);
    }
}

std::optional<bool> isOn(Command command, const CommandContext& context)
{
    return command == Command::StatusLine ? std::optional(context.isStatusLineOn) : std::nullopt;
}

} // namespace tessera
