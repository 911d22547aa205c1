// SPDX-License-Identifier: MIT
#include "Undo/TrashUndo.h"

#include "Base/DisplayText.h"
#include "Desktop/Alert.h"
#include "Undo/DiskChanges.h"
#include "Undo/StepItems.h"

#include <QPointer>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace tessera {

namespace {

std::vector<std::string> placesOf(const std::vector<MovedItem>& items)
{
    std::vector<std::string> places;
    places.reserve(items.size());
    for (const MovedItem& moved : items) {
        places.push_back(moved.item.from.path());
    }
    return places;
}

} // namespace

TrashUndo::TrashUndo(Workspace& workspace, Alert& alert, DiskChanges& diskChanges)
    : m_workspace(workspace)
    , m_alert(alert)
    , m_diskChanges(diskChanges)
    , m_puttingBack(workspace, alert)
    , m_returned(diskChanges)
{
    connect(&m_returned, &ReturnedItems::wasPutBack, this, &TrashUndo::wasPutBack);
    m_stack.setUndoLimit(kMaxSteps);
}

TrashUndo::~TrashUndo() = default;

const TrashStepCommand& TrashUndo::commandAt(int index) const
{
    // Nobody else puts any into the stack.
    return static_cast<const TrashStepCommand&>(*m_stack.command(index));
}

void TrashUndo::recycle(
    std::vector<ItemToRecycle> items, RecycleCompletion completionHandler, AskedStep step)
{
    if (takesAwayWhereItemsComeBack(items)) {
        m_waiting.push_back({[this,
                              items = std::move(items),
                              completion = std::move(completionHandler),
                              step = std::move(step)] { recycleNow(items, completion, step); }});
    } else {
        recycleNow(std::move(items), std::move(completionHandler), std::move(step));
    }
}

/// All other moves go on: a disk that gives no answer must not keep the user from making room on
/// another one.
bool TrashUndo::takesAwayWhereItemsComeBack(const std::vector<ItemToRecycle>& items) const
{
    return std::ranges::any_of(items, [this](const ItemToRecycle& item) {
        return std::ranges::any_of(m_comingBack, [&item](const std::string& place) {
            return place == item.url.path() || place.starts_with(item.url.path() + '/');
        });
    });
}

void TrashUndo::recycleNow(
    std::vector<ItemToRecycle> items, RecycleCompletion completionHandler, AskedStep step)
{
    ++m_movesUnderWay;
    emit changed();
    std::vector<ItemToRecycle> asked = items;
    m_workspace.recycleURLs(
        std::move(items),
        [self = QPointer<TrashUndo>(this),
         asked = std::move(asked),
         step = std::move(step),
         completion = std::move(completionHandler)](const RecycleResult& result) {
            completion(result);
            if (self != nullptr) {
                self->recycled(asked, step, result);
            }
        });
}

void TrashUndo::recycled(
    const std::vector<ItemToRecycle>& items, const AskedStep& step, const RecycleResult& result)
{
    --m_movesUnderWay;
    tellOfJournal(result);
    itemsMoved(movedItems(items, step, result.trashed));
    goOn();
}

void TrashUndo::tellOfJournal(const RecycleResult& result)
{
    if (!result.journalError.empty()) {
        m_alert.beginSheet(
            {tr("The list of moves to the trash cannot be written"),
             displayText(result.journalError),
             {tr("OK")}});
    }
}

void TrashUndo::itemsMoved(std::vector<MovedItem> items)
{
    if (items.empty()) {
        return;
    }
    if (m_isWorking) {
        // The stack must not move under the step that is being undone.
        m_waiting.push_back({[this, items = std::move(items)] { push(items); }});
    } else {
        push(items);
    }
}

void TrashUndo::push(const std::vector<MovedItem>& items)
{
    Items step;
    for (const MovedItem& item : items) {
        step.push_back({.moved = item});
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the stack owns it
    m_stack.push(new TrashStepCommand(std::move(step)));
    emit changed();
    emit moved({items});
}

QString TrashUndo::undoTitle() const
{
    return isBusy() || !m_stack.canUndo()
        ? QString()
        : tr("&Undo Move to Trash of %1").arg(nextToUndo().what());
}

QString TrashUndo::redoTitle() const
{
    return isBusy() || !m_stack.canRedo()
        ? QString()
        : tr("&Redo Move to Trash of %1").arg(nextToRedo().what());
}

QString TrashUndo::whyNoUndo() const
{
    if (isBusy()) {
        return tr("Something is on its way to the trash or back. Wait until it has arrived.");
    }
    return m_stack.canUndo() ? QString() : tr("There is nothing to undo.");
}

QString TrashUndo::whyNoRedo() const
{
    if (isBusy()) {
        return whyNoUndo();
    }
    return m_stack.canRedo() ? QString() : tr("There is nothing to redo.");
}

/// Has it begin when nothing else is under way, and nothing begin until it has ended.
void TrashUndo::work(Work task)
{
    const auto begin = [this, task = std::move(task)] {
        m_isWorking = true;
        emit changed();
        task();
    };
    m_waiting.push_back({begin, true});
    goOn();
}

void TrashUndo::workEnded()
{
    m_isWorking = false;
    m_comingBack.clear();
    goOn();
}

/// Begins what has waited for what is done now, in the order in which it came.
void TrashUndo::goOn()
{
    while (!m_isWorking && !m_waiting.empty()
           && !(m_waiting.front().isAlone && m_movesUnderWay > 0)) {
        const Waiting next = std::move(m_waiting.front());
        m_waiting.pop_front();
        next.begin();
    }
    emit changed();
}

void TrashUndo::undo()
{
    if (undoTitle().isEmpty()) {
        return;
    }
    const std::vector<MovedItem> items = movedItems(nextToUndo().items());
    m_wanted = itemsInTrash(items); // nothing is under way
    work([this, items] {
        m_comingBack = placesOf(items);
        m_puttingBack.begin(
            itemsInTrash(items),
            [this, items](std::size_t item, const PutBackResult& result) {
                returned(items[item], result);
            },
            [this](const std::vector<PutBackResult>& results) { undone(results); });
    });
}

void TrashUndo::returned(const MovedItem& moved, const PutBackResult& result)
{
    if (result.obstacle == PutBackObstacle::Uncertain) {
        emit m_diskChanges.itemInDoubt({moved.item.from, moved.item.to});
    }
    if (result.obstacle != PutBackObstacle::None) {
        return;
    }
    const StepItem item{moved, result.place, onDisk(moved.item, result)};
    ItemMove move = moveOf(item, moved.item.to, result.place);
    move.madeFolder = result.madeFolder;
    m_returned.add(std::move(move), {moved, result.place});
}

void TrashUndo::undone(const std::vector<PutBackResult>& results)
{
    m_returned.tell();
    const int index = m_stack.index() - 1;
    Items& items = nextToUndo().items();
    const std::vector<TrashedItem> wanted = itemsInTrash(movedItems(items));
    Items back;
    Items left(items.begin() + static_cast<std::ptrdiff_t>(results.size()), items.end());
    for (std::size_t i = results.size(); i-- > 0;) {
        const PutBackResult& result = results[i];
        if (result.obstacle == PutBackObstacle::None) {
            const MovedItem& moved = items[i].moved;
            back.insert(back.begin(), {moved, result.place, onDisk(moved.item, result)});
        } else if (result.obstacle != PutBackObstacle::ItemGone) {
            left.insert(left.begin(), items[i]);
        }
    }
    if (!back.empty() && !left.empty()) {
        divide(index, std::move(left), std::move(back));
    } else if (!back.empty()) {
        items = std::move(back);
        m_stack.undo();
    } else {
        items = std::move(left);
    }
    answered(wanted);
}

/// The reason is about the first of them alone.
void TrashUndo::tellWhatStayed(std::size_t count, const RecycleResult& result)
{
    const int number = static_cast<int>(count);
    const bool isDoubtful = std::ranges::any_of(
        result.notMoved, [](const NotRecycled& item) { return item.mayBeAt.has_value(); });
    QString headline = tr("Error moving to Trash");
    if (count > 1) {
        headline = isDoubtful ? tr("%n items may not have been moved to the trash", nullptr, number)
                              : tr("%n items were not moved to the trash", nullptr, number);
    }
    m_alert.beginSheet({headline, displayText(result.error), {tr("OK")}});
}

bool TrashUndo::isNextToUndo(const TrashStep& step) const
{
    return m_stack.canUndo() && movedItems(nextToUndo().items()) == step.items;
}

void TrashUndo::redo()
{
    if (redoTitle().isEmpty()) {
        return;
    }
    work([this] {
        std::vector<ItemToRecycle> again;
        std::ranges::transform(nextToRedo().items(), std::back_inserter(again), toRecycleAgain);
        m_workspace.recycleURLs(
            std::move(again), [self = QPointer<TrashUndo>(this)](const RecycleResult& result) {
                if (self != nullptr) {
                    self->redone(result);
                }
            });
    });
}

void TrashUndo::redone(const RecycleResult& result)
{
    Items& items = nextToRedo().items();
    RedoneStep step = redoneStep(items, result.trashed);
    const TrashStep inTrash{movedItems(step.moved)};
    const std::size_t stayed = step.left.size();
    if (step.left.empty()) {
        items = std::move(step.moved);
        m_stack.redo();
    } else if (!step.moved.empty()) {
        divide(m_stack.index(), std::move(step.moved), std::move(step.left));
    }
    if (!result.error.empty()) {
        tellWhatStayed(stayed, result);
    }
    tellOfJournal(result);
    for (const NotRecycled& item : result.notMoved) {
        if (item.mayBeAt) {
            emit m_diskChanges.itemInDoubt({item.place, *item.mayBeAt});
        }
    }
    if (!inTrash.items.empty()) {
        emit m_diskChanges.itemsMoved(step.moves);
        emit moved(inTrash);
    }
    workEnded();
}

void TrashUndo::putBack(std::vector<MovedItem> items)
{
    std::erase_if(items, [this](const MovedItem& moved) {
        return std::ranges::any_of(m_wanted, [&moved](const TrashedItem& wanted) {
            return isSameMove(wanted, moved.item);
        });
    });
    if (!items.empty()) {
        std::ranges::copy(itemsInTrash(items), std::back_inserter(m_wanted));
        work([this, items = std::move(items)] { putBackNow(items); });
    }
}

void TrashUndo::putBackNow(std::vector<MovedItem> items)
{
    const std::vector<TrashedItem> wanted = itemsInTrash(items);
    // An undo that was under way may have brought some already.
    std::erase_if(items, [this](const MovedItem& moved) { return isUndone(moved.item); });
    std::vector<TrashedItem> inTrash = itemsInTrash(items);
    m_comingBack = placesOf(items);
    m_puttingBack.begin(
        std::move(inTrash),
        [this, items = std::move(items)](std::size_t item, const PutBackResult& result) {
            returned(items[item], result);
            if (result.obstacle == PutBackObstacle::None
                || result.obstacle == PutBackObstacle::ItemGone) {
                forget(items[item].item);
            }
        },
        [this, wanted](const std::vector<PutBackResult>& /*results*/) {
            m_returned.tell();
            answered(wanted);
        });
}

/// That was the last that was heard of putting these back.
void TrashUndo::answered(const std::vector<TrashedItem>& wanted)
{
    std::erase_if(m_wanted, [&wanted](const TrashedItem& item) {
        return std::ranges::find(wanted, item) != wanted.end();
    });
    dropEmptySteps();
    workEnded();
}

bool TrashUndo::isUndone(const TrashedItem& item) const
{
    for (int i = m_stack.index(); i < m_stack.count(); ++i) {
        const bool isHere
            = std::ranges::any_of(commandAt(i).items(), [&item](const StepItem& undone) {
                  return isSameMove(undone.moved.item, item);
              });
        if (isHere) {
            return true;
        }
    }
    return false;
}

/// The item is not in the trash any more, and no undo of a step has brought it.
void TrashUndo::forget(const TrashedItem& item)
{
    for (int i = 0; i < m_stack.index(); ++i) {
        std::erase_if(commandAt(i).items(), [&item](const StepItem& done) {
            return isSameMove(done.moved.item, item);
        });
    }
}

/// The stack lets go of a step without items when it comes to it.
void TrashUndo::dropEmptySteps()
{
    while (m_stack.canUndo() && nextToUndo().items().empty()) {
        m_stack.undo();
    }
}

/// The step at that place becomes two: what is done, and what is undone.
void TrashUndo::divide(int index, Items done, Items undone)
{
    // The stack takes new steps on top alone.
    std::vector<Items> steps;
    steps.reserve(static_cast<std::size_t>(m_stack.count()) + 1);
    for (int i = 0; i < m_stack.count(); ++i) {
        steps.push_back(std::move(commandAt(i).items()));
    }
    const auto divided = steps.begin() + index;
    *divided = std::move(done);
    steps.insert(std::next(divided), std::move(undone));
    int undoneSteps = m_stack.count() - index;
    if (steps.size() > kMaxSteps && undoneSteps > 1) {
        // The stack would forget its first, which may be the one that is done.
        steps.pop_back();
        --undoneSteps;
    }
    m_stack.clear();
    for (Items& step : steps) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the stack owns it
        m_stack.push(new TrashStepCommand(std::move(step)));
    }
    m_stack.setIndex(m_stack.count() - undoneSteps);
}

} // namespace tessera
