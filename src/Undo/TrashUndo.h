// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"
#include "Undo/PuttingBack.h"
#include "Undo/ReturnedItems.h"
#include "Undo/TrashStep.h"
#include "Undo/TrashStepCommand.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tessera {

class Alert;
class DiskChanges;

/// What the user moved to the trash while the program runs, to be taken back in that order and done
/// again. It outlives the screens.
///
/// The disk takes its time: a step counts as undone, or done again, when its items are where they
/// belong, and until then no other begins. Where only some of a step's items have moved it becomes
/// two: what has not moved can be tried again. Main thread only.
class TrashUndo final : public QObject {
    Q_OBJECT

public:
    static constexpr int kMaxSteps = 100; ///< older ones are forgotten

    /// All must outlive it.
    TrashUndo(Workspace& workspace, Alert& alert, DiskChanges& diskChanges);
    ~TrashUndo() override;

    /// Has the workspace move items that the user chose, once nothing is being put back into a
    /// folder among them. What has moved is one step, which follows the completion handler; that
    /// tells the user of what has stayed, and changes the tree.
    void recycle(
        std::vector<ItemToRecycle> items, RecycleCompletion completionHandler, AskedStep step = {});

    /// The same of items that somebody else has moved.
    void itemsMoved(std::vector<MovedItem> items);

    /// Begin to put the last step's items back, or to move those put back last to the trash again.
    /// Nothing happens while there is none, or while something is on its way.
    void undo();
    void redo();

    /// What the menus' entries say, with a mnemonic; empty when there is nothing to do, or while
    /// something is on its way.
    QString undoTitle() const;
    QString redoTitle() const;
    /// Sentences for the user that say why; empty when it can be done.
    QString whyNoUndo() const;
    QString whyNoRedo() const;

    /// Whether undo() is about those very items, all of them.
    bool isNextToUndo(const TrashStep& step) const;

    /// Puts items back that the user chose from all in the trash, after what is on its way. They
    /// leave their steps. Those that are being put back already are passed over.
    void putBack(std::vector<MovedItem> items);

    /// What is being put back, or waits until it can be: a disk may give no answer.
    const std::vector<TrashedItem>& comingBack() const { return m_wanted; }

    /// Whether anything is on its way to the trash or back.
    bool isBusy() const { return m_isWorking || m_movesUnderWay > 0 || !m_waiting.empty(); }

signals:
    /// Of what the functions above answer.
    void changed();
    /// These have gone to the trash, for the first time or again, and the tree has changed.
    void moved(const tessera::TrashStep& step);
    /// This has come back, and the tree has changed.
    void wasPutBack(const tessera::ReturnedItem& item);

private:
    using Work = std::function<void()>;
    using Items = std::vector<StepItem>;

    void recycleNow(
        std::vector<ItemToRecycle> items, RecycleCompletion completionHandler, AskedStep step);
    const TrashStepCommand& commandAt(int index) const;
    const TrashStepCommand& nextToUndo() const { return commandAt(m_stack.index() - 1); }
    const TrashStepCommand& nextToRedo() const { return commandAt(m_stack.index()); }

    void recycled(
        const std::vector<ItemToRecycle>& items,
        const AskedStep& step,
        const RecycleResult& result);
    void tellOfJournal(const RecycleResult& result);
    void push(const std::vector<MovedItem>& items);
    void returned(const MovedItem& moved, const PutBackResult& result);
    void undone(const std::vector<PutBackResult>& results);
    void redone(const RecycleResult& result);
    void tellWhatStayed(std::size_t count, const RecycleResult& result);
    void divide(int index, Items done, Items undone);
    void putBackNow(std::vector<MovedItem> items);
    void answered(const std::vector<TrashedItem>& wanted);
    bool isUndone(const TrashedItem& item) const;
    void forget(const TrashedItem& item);
    void dropEmptySteps();
    bool takesAwayWhereItemsComeBack(const std::vector<ItemToRecycle>& items) const;
    void work(Work task);
    void workEnded();
    void goOn();

    Workspace& m_workspace;
    Alert& m_alert;
    DiskChanges& m_diskChanges;
    PuttingBack m_puttingBack;
    ReturnedItems m_returned;
    QUndoStack m_stack;
    int m_movesUnderWay = 0; ///< of items that the user chose
    bool m_isWorking = false; ///< on a step, or on what the user wants back from among all
    /// For that to end, and the moves with it where the work must be alone.
    struct Waiting {
        Work begin;
        bool isAlone = false;
    };
    std::deque<Waiting> m_waiting;
    std::vector<std::string> m_comingBack; ///< paths at which items are being put back now
    std::vector<TrashedItem> m_wanted; ///< that are being put back, or wait for it
};

} // namespace tessera
