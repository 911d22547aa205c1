// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/AdaptiveMutex.h"
#include "Platform/Linux/Walk/DirectoryReader.h"
#include "Platform/Linux/Walk/FolderHandles.h"
#include "Platform/Linux/Walk/FolderOpener.h"
#include "Platform/Linux/Walk/WalkFolder.h"

#include <atomic>
#include <condition_variable>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace tessera {

/// How far and by how many threads a walk reads ahead of whoever takes its items.
struct ReadAheadOptions {
    unsigned helpers = 7; ///< threads beside the taker's; with 0 folders are read on demand alone
    std::size_t maxEntriesAhead = 65536; ///< listed and not yet taken; one folder may exceed it
    /// Folders at most so far below the start are read ahead, others only on demand.
    std::size_t levelsAhead = std::numeric_limits<std::size_t>::max();
};

/// Reads the folders below a start in about the order in which a depth-first walk needs them. One
/// thread, the taker, fetches folders and gives them back; helper threads read what it will fetch
/// next. The taker reads a folder itself that nobody has begun, and helps while it waits.
///
/// What is to be done stands in two lists: parts of a large folder whose entries are to be
/// completed, and folders with subfolders that nobody has taken, in the order of the walk. What
/// the walk comes to first is read first: folders read too early would use up the room for
/// entries that are not taken yet, and the taker would have to read alone until it gets there.
class ReadAhead {
public:
    /// Walks `start`, which need not be open: then there is nothing in it, for the reason that it
    /// has. Returns when the start is read.
    ReadAhead(OpenedFolder start, ItemKeys keys, const ReadAheadOptions& options);
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// Ends the helpers, each at the next entry or the next buffer of a listing.
    ~ReadAhead();

    /// The folder where the walk starts, with its listing: an empty one when it cannot be read.
    WalkFolder& start() { return *m_start; }

    /// The folder's subfolder at that position among its directories, with its listing: an empty
    /// one when it cannot be read. Waits as long as that takes. Positions must ascend.
    WalkFolder& fetch(WalkFolder& folder, std::size_t position);

    /// The subfolder at that position is not wanted, nor what lies below it.
    void skip(WalkFolder& folder, std::size_t position);

    /// So many more entries of fetched folders were taken.
    void countTaken(std::size_t entries);

    /// The fetched folder and all below it was taken; it ceases to exist. Not for the start.
    void finish(WalkFolder& folder);

private:
    using Lock = std::unique_lock<std::mutex>;

    /// Entries of a folder that one thread is to complete.
    struct Step {
        WalkFolder* folder;
        std::size_t begin;
        std::size_t end;
    };

    void startHelpers(unsigned count);
    void help();
    bool workOnce(Lock& lock);
    bool mayReadAhead() const;
    void countAllAsFar();

    WalkFolder& take(WalkFolder& folder, std::size_t position);
    void passBy(WalkFolder& folder, std::size_t position);
    WalkOrder& orderOf(const WalkFolder& folder);
    void abandon(std::unique_ptr<WalkFolder> folder);

    OpenedFolder openFolder(WalkFolder& folder);
    void read(WalkFolder& folder, Lock& lock);
    void readEntries(WalkFolder& folder, Lock& lock);
    void completeStep(const Step& step, Lock& lock);
    void finishReading(WalkFolder& folder);
    void awaitReady(WalkFolder& folder, Lock& lock);
    void wakeHelpers(std::size_t workers);
    void lowerEntriesAhead(std::size_t entries);

    const DirectoryReader m_reader;
    const std::size_t m_maxEntriesAhead;
    const std::size_t m_levelsAhead;
    FolderHandles m_handles;
    std::optional<FolderOpener> m_opener;
    std::atomic<bool> m_isEnding{false};

    AdaptiveMutex m_mutex;
    std::condition_variable m_work; ///< there may be something to do for a helper
    std::condition_variable m_progress; ///< there may be something to do for the waiting taker
    std::vector<Step> m_steps;
    /// Folders with untaken subfolders.
    WalkOrder m_untaken;
    WalkOrder m_untakenTooDeep; ///< those whose subfolders are not to be read ahead
    std::size_t m_entriesAhead = 0;
    std::size_t m_farEntriesAhead = 0; ///< of these, those that the taker comes to much later
    unsigned m_idleHelpers = 0;
    const WalkFolder* m_awaited = nullptr; ///< what the taker waits for
    std::unique_ptr<WalkFolder> m_start;
    std::vector<std::unique_ptr<WalkFolder>> m_abandoned; ///< helpers may still be at them
    std::vector<std::thread> m_helpers;
};

} // namespace tessera
