// SPDX-License-Identifier: MIT
#include "History/TrashRecord.h"

namespace tessera {

TrashRecord settled(TrashRecord record, const IsItemAt& isItemAt)
{
    const TrashedItem& item = record.item;
    if (record.state == TrashState::NotMoved || record.state == TrashState::PutBack) {
        return record;
    }
    const std::optional<bool> isInTrash = isItemAt(item.to, item);
    if (isInTrash == true) {
        record.state = TrashState::Moved;
        record.place = Url();
        return record;
    }
    const std::optional<bool> isWhereItWent
        = record.place.empty() ? std::optional(false) : isItemAt(record.place, item);
    if (isWhereItWent == true) {
        record.state = TrashState::PutBack;
        return record;
    }
    const std::optional<bool> isWhereItWas = isItemAt(item.from, item);
    if (isWhereItWas == true) {
        const bool hadMoved = record.state != TrashState::Begun;
        record.state = hadMoved ? TrashState::PutBack : TrashState::NotMoved;
        record.place = hadMoved ? item.from : Url();
    } else if (isInTrash == false && isWhereItWas == false && isWhereItWent == false) {
        record.state = TrashState::Gone;
        record.place = Url();
    }
    return record;
}

} // namespace tessera
