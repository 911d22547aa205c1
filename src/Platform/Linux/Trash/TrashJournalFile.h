// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashJournalText.h"
#include "Platform/Linux/Files/FileStatus.h"

#include <cerrno>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// What stands in the place of the journal, or of the folder it is in, is no regular file, or no
/// folder, of the user's own that nobody else may write to.
inline constexpr int kNotTheUsersOwn = EBADF;

/// Whether the disk has to have the bytes before the call returns.
enum class Durability : std::uint8_t { Later, Now };

/// How long is waited for another program that writes to the journal.
enum class LockPatience : std::uint8_t { None, ASecond };

/// Where a journal is under the folder for states.
[[nodiscard]] std::string trashJournalPath(const std::string& stateHome);

/// Appends whole lines, alone: what another one that is cut short leaves of a line is ended first.
/// Makes what is missing. 0, or the errno; EWOULDBLOCK when another program is at it all the time.
[[nodiscard]] int appendToTrashJournal(
    const std::string& stateHome,
    std::string_view lines,
    Durability durability,
    LockPatience patience = LockPatience::ASecond);

/// Reads what the journal holds, 64 MiB from its end at most; nothing when it cannot be read.
[[nodiscard]] std::optional<TrashJournalReader> readTrashJournal(const std::string& stateHome);

/// Rewrites a journal of which a reader keeps less than there is, unless others are at it.
void shortenTrashJournal(const std::string& stateHome);

} // namespace tessera
