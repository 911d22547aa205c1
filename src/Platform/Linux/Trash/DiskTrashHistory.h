// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashHistory.h"
#include "Platform/Linux/Trash/DiskWorkers.h"

#include <memory>

namespace tessera {

class FileSystemQuestions;
class TrashJournal;

/// What the journal tells, with what the disks show of it now, read on a thread of its own. Its end
/// waits for nothing: a shortening that is broken off leaves the journal as it was.
class DiskTrashHistory final : public TrashHistory {
public:
    /// `mainThread` must outlive it.
    DiskTrashHistory(
        std::shared_ptr<TrashJournal> journal,
        std::shared_ptr<const FileSystemQuestions> questions,
        MainThread& mainThread);

    void entries(TrashRecordsCompletion completionHandler) override;

    /// Has the journal shortened, once a start, and returns at once.
    void shortenJournal();

private:
    const std::shared_ptr<TrashJournal> m_journal;
    const std::shared_ptr<const FileSystemQuestions> m_questions;
    DiskWorkers m_workers;
};

} // namespace tessera
