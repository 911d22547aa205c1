// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/PutBack.h"
#include "Undo/TrashStep.h"

#include <QString>
#include <QUndoCommand>

#include <memory>
#include <vector>

namespace tessera {

/// An item of a step. While the step is undone, `moved` says where the item was in the trash.
struct StepItem {
    MovedItem moved;
    Url place = {}; ///< where it was put back
    ItemOnDisk onDisk = {}; ///< it, when it was put back
};

/// A step in the stack. The disk has done what it stands for before the stack moves over it, so it
/// does nothing itself; a step that has lost its items leaves the stack. Main thread only.
class TrashStepCommand final : public QUndoCommand {
public:
    explicit TrashStepCommand(std::vector<StepItem> items);

    /// The stack gives its steps for reading alone.
    std::vector<StepItem>& items() const { return *m_items; }

    /// What the step has moved, for a menu: the item's name in quotation marks, not too long, or
    /// the number of items.
    QString what() const;

    void undo() override { setObsolete(m_items->empty()); }
    void redo() override { setObsolete(m_items->empty()); }

private:
    std::unique_ptr<std::vector<StepItem>> m_items;
};

} // namespace tessera
