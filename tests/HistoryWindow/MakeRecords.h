// SPDX-License-Identifier: MIT
#pragma once

#include "History/TrashRecord.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tessera::test {

/// A move of /home/me/NAME, whose number, time in minutes and size in kilobytes are that number.
inline TrashRecord makeRecord(
    std::uint64_t number, const std::string& name, TrashState state = TrashState::Moved)
{
    TrashRecord record;
    record.item.number = number;
    record.item.from = Url("/home/me/" + name, false);
    record.item.to = Url("/home/me/.local/share/Trash/files/" + name, false);
    record.time = 1'795'347'571 + static_cast<std::int64_t>(number) * 60;
    record.bytes = number * 1000;
    record.state = state;
    if (state == TrashState::PutBack) {
        record.place = Url("/home/me/" + name + " 2", false);
    }
    return record;
}

/// So many moves, newest first; the item's name is its number.
inline std::vector<TrashRecord> makeRecords(std::uint64_t count)
{
    std::vector<TrashRecord> records;
    for (std::uint64_t number = count; number > 0; --number) {
        records.push_back(makeRecord(number, std::to_string(number)));
    }
    return records;
}

} // namespace tessera::test
