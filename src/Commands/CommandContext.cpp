// SPDX-License-Identifier: MIT
#include "Commands/CommandContext.h"

#include "Base/DisplayText.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"

#include <QCoreApplication>

namespace tessera {

namespace {

struct CommandHintTexts {
    Q_DECLARE_TR_FUNCTIONS(CommandHintTexts)
};

QString scanIsRunning()
{
    return CommandHintTexts::tr("A scan is running. Wait until it has ended.");
}

QString whyNoTree(const CommandContext& context)
{
    return context.isScanRunning ? scanIsRunning()
                                 : CommandHintTexts::tr("Scan a disk or a folder first.");
}

QString whyNotHome(const CommandContext& context)
{
    if (!context.hasHomeScreen) {
        return {};
    }
    return context.isScanRunning ? scanIsRunning()
                                 : CommandHintTexts::tr("This is the home screen already.");
}

QString whyNoZoomOut(const CommandContext& context)
{
    if (!context.isRootInView) {
        return {};
    }
    const QString name
        = context.folderInView == nullptr ? QString() : displayText(context.folderInView->name());
    return CommandHintTexts::tr("'%1' is all that was scanned. There is no folder around it here.")
        .arg(name);
}

QString whyNoRescan(const CommandContext& context)
{
    const File* const selected = context.selectedFile;
    const Folder* const folder
        = selected == nullptr ? context.folderInView : nodeCast<Folder>(selected);
    if (context.rescanObstacle == RescanObstacle::AnotherRescan) {
        return CommandHintTexts::tr("A rescan is running already. Wait until it has ended.");
    }
    if (folder == nullptr) {
        return CommandHintTexts::tr("Only folders can be scanned again. Select one, or nothing to "
                                    "rescan the folder in view.");
    }
    if (context.rescanObstacle == RescanObstacle::MountPoint) {
        return CommandHintTexts::tr("A disk is mounted at '%1'. It is not part of this scan; scan "
                                    "it by itself.")
            .arg(displayText(folder->name()));
    }
    return {};
}

/// An open panel stays for the tree of a folder, and can be closed.
QString whyNoLedger(const CommandContext& context)
{
    return context.isDiskScanned || context.isLedgerOpen
        ? QString()
        : CommandHintTexts::tr("This is about whole disks. Scan a disk to see where its space is.");
}

QString whyNotWithoutFolder(const CommandContext& context)
{
    const bool isFolder = context.selectedFile != nullptr && context.selectedFile->isFolder();
    return isFolder ? QString() : CommandHintTexts::tr("Select a folder first.");
}

QString whyNotWithoutItem(const CommandContext& context)
{
    const bool isItemSelected = context.selectedFile != nullptr && isItem(*context.selectedFile);
    return isItemSelected ? QString() : nothingSelected();
}

QString whyNotOnTree(Command command, const CommandContext& context)
{
    switch (command) {
    case Command::Basket:
    case Command::StatusLine:
        return {};
    case Command::ZoomOut:
        return whyNoZoomOut(context);
    case Command::Rescan:
        return whyNoRescan(context);
    case Command::SpaceLedger:
        return whyNoLedger(context);
    case Command::ZoomIn:
    case Command::Ignore:
        return whyNotWithoutFolder(context);
    case Command::CopyPath:
    case Command::OpenTerminal:
        // With nothing selected they are about the folder in view.
        return context.selectedFile == nullptr ? QString() : whyNotWithoutItem(context);
    case Command::Open:
    case Command::QuickLook:
    case Command::ShowInFinder:
        return context.selectedFile == nullptr ? nothingSelected() : QString();
    default:
        return whyNotWithoutItem(context);
    }
}

} // namespace

QString whyDisabled(Command command, const CommandContext& context)
{
    switch (command) {
    case Command::OpenFolder:
    case Command::Preferences:
    case Command::Quit:
    case Command::FullScreen:
    case Command::TrashHistory:
    case Command::Features:
    case Command::Questions:
    case Command::About:
        return {};
    case Command::Home:
        return whyNotHome(context);
    case Command::Reload:
        return context.isScanRunning ? scanIsRunning() : QString();
    case Command::Undo:
        return context.whyNoUndo;
    case Command::Redo:
        return context.whyNoRedo;
    default:
        return context.hasTreeScreen ? whyNotOnTree(command, context) : whyNoTree(context);
    }
}

QString nothingSelected()
{
    return CommandHintTexts::tr("Select a file or a folder first.");
}

std::optional<bool> isOn(Command command, const CommandContext& context)
{
    return command == Command::StatusLine ? std::optional(context.isStatusLineOn) : std::nullopt;
}

} // namespace tessera
