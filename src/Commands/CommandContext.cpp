// SPDX-License-Identifier: MIT
#include "Commands/CommandContext.h"

#include "Model/File.h"
#include "Model/NodeLookup.h"

namespace tessera {

bool isEnabled(Command command, const CommandContext& context)
{
    const File* const selected = context.hasTreeScreen ? context.selectedFile : nullptr;
    switch (command) {
    case Command::Home:
        return !context.hasHomeScreen;
    case Command::ZoomOut:
        return context.hasTreeScreen && !context.isRootInView;
    case Command::Open:
    case Command::QuickLook:
    case Command::ShowInFinder:
        return selected != nullptr;
    case Command::ZoomIn:
    case Command::Ignore:
        return selected != nullptr && selected->isFolder();
    case Command::Rescan:
        return context.hasTreeScreen && context.canRescan;
    case Command::Compress:
    case Command::MoveToTrash:
        return selected != nullptr && isItem(*selected);
    case Command::OpenFolder:
    case Command::Preferences:
    case Command::Quit:
    case Command::FullScreen:
    case Command::Features:
    case Command::Questions:
        break;
    }
    return true;
}

} // namespace tessera
