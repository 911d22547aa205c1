// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashRecord.h"
#include "Platform/Linux/Trash/TrashJournalFile.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace tessera {

class FileSystemQuestions;

/// The file in which the program writes down what it moves to the trash, before it does
/// (History/TrashJournalText.h): "tessera/trash-journal" in the user's folder for states,
/// https://specifications.freedesktop.org/basedir-spec/. Nobody else may read it.
///
/// Several threads and programs may write at once and lose nothing of each other's. What stands in
/// the file's place and is no regular file of the user's own is neither written nor replaced.
/// Calls block for as long as the file system takes, and a second at most for another program; when
/// that has been in vain, not again until the journal could be written once. With questions to ask
/// of file systems, one that gives no answer holds up no call: then nothing is written or read.
class TrashJournal {
public:
    /// Seconds since 1970-01-01 00:00 UTC.
    using Clock = std::function<std::int64_t()>;

    /// By the environment and the password database; absolute.
    static std::string defaultStateHome();

    explicit TrashJournal(
        std::string stateHome, std::shared_ptr<const FileSystemQuestions> questions = nullptr);
    /// Tests pass a clock of their own.
    TrashJournal(
        std::string stateHome,
        Clock clock,
        std::shared_ptr<const FileSystemQuestions> questions = nullptr);

    /// Writes down that the item is about to move, and has it brought to the disk. Its number from
    /// now on; 0 when it could not be written, which takeError() explains.
    [[nodiscard]] std::uint64_t begin(TrashedItem item, std::optional<std::uint64_t> bytes);

    /// Writes down that the item of that number is about to be put back there, and has it brought
    /// to the disk; nothing for 0.
    void beginReturn(std::uint64_t number, const Url& place);

    /// Writes down what became of the item of that number; nothing for 0. `place` with PutBack.
    void note(std::uint64_t number, TrashState state, const Url& place = {});

    /// The moves that are written down, newest first; none when the file cannot be read.
    [[nodiscard]] std::vector<TrashRecord> records() const;

    /// Drops what is older than the newest kMostTrashRecords moves, by a new file that takes the
    /// old one's place in one step. Changes nothing where that cannot be done.
    void shorten() const;

    /// One sentence for the user, once, when a move could not be entered; empty before and ever
    /// after.
    [[nodiscard]] std::string takeError();

private:
    bool answers() const;
    int append(const std::string& line, Durability durability);
    void keepError(std::error_code error);

    const std::string m_stateHome;
    const Clock m_clock;
    const std::shared_ptr<const FileSystemQuestions> m_questions; ///< null: none is asked
    std::atomic<bool> m_isBusy = false; ///< another program did not let go of the file
    std::mutex m_mutex; ///< guards what follows
    std::error_code m_error;
    bool m_isErrorTaken = false;
};

} // namespace tessera
