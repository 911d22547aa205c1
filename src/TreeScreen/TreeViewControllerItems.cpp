// SPDX-License-Identifier: MIT
// What other programs and the archiver do with the selected item.
#include "Base/DisplayText.h"
#include "Desktop/Alert.h"
#include "Model/Folder.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"
#include "Undo/DiskChanges.h"

namespace tessera {

void TreeViewController::performElsewhere(Command command)
{
    const File* const subject = m_selectedFile != nullptr ? m_selectedFile : m_currentFolder;
    if (subject == nullptr || !validate(command)) {
        return;
    }
    m_opening.perform(command, *subject);
    if (command == Command::CopyPath) {
        say(tr("The path of '%1' is copied.").arg(displayText(subject->name())));
    }
}

void TreeViewController::compressItem()
{
    if (m_selectedFile == nullptr || !isItem(*m_selectedFile)) {
        return;
    }
    const auto compressing = CompressWindowController::make(m_services.compressing);
    // It may end when this screen is gone.
    connect(
        compressing.get(),
        &CompressWindowController::itemGone,
        &m_services.diskChanges,
        &DiskChanges::itemGone);
    connect(
        compressing.get(),
        &CompressWindowController::itemCompressed,
        &m_services.diskChanges,
        &DiskChanges::itemCompressed);
    connect(
        compressing.get(),
        &CompressWindowController::originalToTrash,
        this,
        &TreeViewController::trashOriginal);
    compressing->showWindow(m_treeView.window());
    compressing->compressURL(placeOnDisk(*m_selectedFile), allocationOfAllNames(*m_selectedFile));
}

/// The tree may have changed since it was archived.
void TreeViewController::trashOriginal(const Url& original, const ExpectedItem& expected)
{
    TopFolder* const top = m_model.topFolder();
    const File* const item
        = top == nullptr ? nullptr : nodeAtPath(*top, pathInTree(*top, original.path()));
    if (item != nullptr) {
        m_trasher.trash(*item, expected);
        return;
    }
    m_services.alert.beginSheet(
        {tr("'%1' stays where it is").arg(displayText(original.lastPathComponent())),
         tr("It is not in the picture any more. Rescan its folder to move it to the trash."),
         {tr("OK")}});
}

} // namespace tessera
