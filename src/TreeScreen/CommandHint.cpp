// SPDX-License-Identifier: MIT
#include "TreeScreen/CommandHint.h"

#include "Base/DisplayText.h"
#include "Model/Folder.h"

#include <QCoreApplication>

namespace tessera::command_hint {

namespace {

struct CommandHintTexts {
    Q_DECLARE_TR_FUNCTIONS(CommandHintTexts)
};

QString whyNoRescan(const Folder* toRescan, RescanObstacle obstacle)
{
    if (obstacle == RescanObstacle::AnotherRescan) {
        return CommandHintTexts::tr("A rescan is running already. Wait until it has ended.");
    }
    if (toRescan != nullptr && obstacle == RescanObstacle::MountPoint) {
        return CommandHintTexts::tr("A disk is mounted at '%1'. It is not part of this scan; scan "
                                    "it by itself.")
            .arg(displayText(toRescan->name()));
    }
    return CommandHintTexts::tr("Only folders can be scanned again. Select one, or nothing to "
                                "rescan the folder in view.");
}

} // namespace

QString whyNot(Command command, const Folder* toRescan, RescanObstacle obstacle)
{
    switch (command) {
    case Command::Rescan:
        return whyNoRescan(toRescan, obstacle);
    case Command::ZoomIn:
    case Command::Ignore:
        return CommandHintTexts::tr("Select a folder first.");
    case Command::SpaceLedger:
        return CommandHintTexts::tr(
            "This is about whole disks. Scan a disk to see where its space is.");
    default:
        return nothingSelected();
    }
}

QString nothingSelected()
{
    return CommandHintTexts::tr("Select a file or a folder first.");
}

QString nothingAround(const Folder& scanned)
{
    return CommandHintTexts::tr("'%1' is all that was scanned. There is no folder around it here.")
        .arg(displayText(scanned.name()));
}

QString noBoxThatWay()
{
    return CommandHintTexts::tr("There is no box that way.");
}

} // namespace tessera::command_hint
