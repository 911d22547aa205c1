// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashRecord.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tessera {

// The journal of moves to the trash is a text of two kinds of lines:
//
//   trash NUMBER TIME BYTES DEVICE INODE BIRTH FROM TO .
//   moved|stayed|returning|back|gone NUMBER [PLACE] .
//
// The first is written before an item moves, the second afterwards; PLACE is where it was put back
// to, or, with "returning", where it is about to be. The time is UTC (ISO 8601), the bytes and the
// time of birth are "-" when nobody knew them, and the places are file URLs, so that any name is
// one word. The dot at the end tells a line from one that was cut off.

/// How many moves a journal keeps.
inline constexpr std::size_t kMostTrashRecords = 1000;

/// The first line, for a record of any state.
[[nodiscard]] std::string trashBeginningLine(const TrashRecord& record);

/// The second line; `place` with PutBack, and with Moved when the item is about to be put there.
/// Empty for Begun, which has none.
[[nodiscard]] std::string trashStateLine(
    std::uint64_t number, TrashState state, const Url& place = {});

/// Reads a journal piece by piece in bounded memory. What is no whole line of a journal is passed
/// over, whatever it is. Of several moves with one number a state is about the last one before it.
class TrashJournalReader {
public:
    /// The next bytes of the text, of which the last line counts only once its end has come.
    void feed(std::string_view bytes);

    /// The last kMostTrashRecords moves, in the order of the text.
    const std::deque<TrashRecord>& records() const { return m_records; }

    /// Whether there were more moves, or more bytes that mean nothing than are worth keeping.
    bool isWasteful() const;

private:
    void takeLine(std::string_view line);
    void add(TrashRecord record);
    [[nodiscard]] bool addState(const std::vector<std::string_view>& words);

    std::deque<TrashRecord> m_records;
    std::uint64_t m_dropped = 0; ///< moves before the first of m_records
    std::unordered_map<std::uint64_t, std::uint64_t> m_places; ///< number to count of moves before
    std::string m_line; ///< what has come of the last one
    bool m_isLineTooLong = false;
    std::uint64_t m_bytesOfNoUse = 0;
};

} // namespace tessera
