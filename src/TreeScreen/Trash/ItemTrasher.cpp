// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/ItemTrasher.h"

#include "Base/DisplayText.h"
#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "Model/File.h"
#include "Model/NodeLookup.h"
#include "TreeScreen/Trash/LinkedInItems.h"
#include "TreeScreen/Trash/MovesToTrash.h"
#include "TreeScreen/Trash/TrashRisks.h"

#include <QPointer>

#include <optional>
#include <string>

namespace tessera {

namespace {

constexpr int kCancelButton = 1;

/// The languages' words for the two kinds differ in more than themselves.
QString systemQuestion(const File& item)
{
    return item.isFolder()
        ? ItemTrasher::tr("The selected folder '%1' is located inside a system folder. Other "
                          "applications may be using this folder. Are you sure you want to move "
                          "this folder to the trash?")
        : ItemTrasher::tr("The selected file '%1' is located inside a system folder. Other "
                          "applications may be using this file. Are you sure you want to move this "
                          "file to the trash?");
}

QString hiddenQuestion(const File& item)
{
    if (item.hidden()) {
        return item.isFolder()
            ? ItemTrasher::tr("The selected folder '%1' is marked as hidden, are you sure you want "
                              "to move this item to the trash?")
            : ItemTrasher::tr(
                "The selected file '%1' is marked as hidden, are you sure you want to "
                "move this item to the trash?");
    }
    return item.isFolder()
        ? ItemTrasher::tr(
            "The selected folder '%1' is located inside a hidden folder, are you sure "
            "you want to move this item to the trash?")
        : ItemTrasher::tr("The selected file '%1' is located inside a hidden folder, are you sure "
                          "you want to move this item to the trash?");
}

} // namespace

ItemTrasher::ItemTrasher(const TrashRisks& risks, MovesToTrash& moves, Alert& alert)
    : m_risks(risks)
    , m_moves(moves)
    , m_alert(alert)
{
}

void ItemTrasher::trash(const File& item, const std::optional<ExpectedItem>& expected)
{
    if (!isItem(item)) {
        return;
    }
    // The item may be released while a question about it is open: a rescan ends, for instance.
    const Url place = placeOnDisk(item);
    const std::string path = item.absolutePath();
    const LinkedInItems linked({&item});
    ItemToMove move{path, {place, linked.bytesOf(item)}, linked.otherNames()};
    move.onDisk.expected = expected;
    const QPointer<ItemTrasher> self(this);
    if (m_moves.isOnItsWay(place.path()) || !mayTrash(item) || self == nullptr) {
        return;
    }
    // It may have gone with the basket while the question was open.
    if (m_moves.isOnItsWay(place.path()) || m_moves.hasLeft(path)) {
        return;
    }
    m_moves.begin(
        {move},
        std::nullopt,
        MovesToTrash::Selection::Nothing,
        [self, place](const RecycleResult& result) {
            if (self != nullptr) {
                self->recycled(place, result);
            }
        });
}

bool ItemTrasher::mayTrash(const File& item) const
{
    return m_risks.isInSystemFolder(item) ? confirmSystem(item) : confirmHidden(item);
}

bool ItemTrasher::confirmSystem(const File& item) const
{
    return ask(systemQuestion(item).arg(displayText(item.name())));
}

bool ItemTrasher::confirmHidden(const File& item) const
{
    return !m_risks.isHidden(item) || ask(hiddenQuestion(item).arg(displayText(item.name())));
}

bool ItemTrasher::ask(const QString& question) const
{
    // Delete and then Return is typed before the warning is read.
    const AlertText warning{
        tr("Warning"), question, {tr("Move To Trash"), tr("Cancel")}, {}, kCancelButton};
    return m_alert.runModal(warning) != Alert::kFirstButton + kCancelButton;
}

void ItemTrasher::recycled(const Url& place, const RecycleResult& result)
{
    if (!result.error.empty()) {
        m_alert.beginSheet(
            {tr("Error moving to Trash"),
             tr("Error moving '%1' to the Trash for recycling.")
                 .arg(displayText(place.lastPathComponent())),
             {tr("OK")},
             displayText(result.error)});
    }
}

} // namespace tessera
