// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/BackgroundTrash.h"

#include "Platform/Linux/Trash/TrashSentences.h"

#include <QtGlobal>

#include <utility>

namespace tessera {

namespace {

/// Neither the items nor their disks are to blame.
constexpr const char* kNothingMoved = QT_TRANSLATE_NOOP(
    "TrashSentences",
    "Nothing was moved to the trash, because the system is too busy to begin with it. Close some "
    "programs and try again.");
constexpr const char* kNothingPutBack = QT_TRANSLATE_NOOP(
    "TrashSentences",
    "Nothing was put back, because the system is too busy to begin with it. Close some programs "
    "and try again.");

} // namespace

BackgroundTrash::BackgroundTrash(MainThread& mainThread, Mover mover)
    : m_mover(std::move(mover))
    , m_workers(mainThread)
{
}

void BackgroundTrash::recycle(std::vector<ItemToRecycle> items, RecycleCompletion completionHandler)
{
    perform(
        Move([mover = m_mover, items = std::move(items)] { return mover(items); }),
        std::move(completionHandler));
}

void BackgroundTrash::perform(Move move, RecycleCompletion completionHandler)
{
    RecycleResult notMoved;
    notMoved.error = trashSentence(kNothingMoved);
    m_workers.perform(std::move(move), std::move(completionHandler), std::move(notMoved));
}

void BackgroundTrash::perform(PutBack putBack, PutBackCompletion completionHandler)
{
    PutBackResult notPutBack;
    notPutBack.obstacle = PutBackObstacle::Failed;
    notPutBack.error = trashSentence(kNothingPutBack);
    m_workers.perform(std::move(putBack), std::move(completionHandler), std::move(notPutBack));
}

} // namespace tessera
