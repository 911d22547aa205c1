// SPDX-License-Identifier: MIT
#include "Compress/OriginalCheck.h"

#include "Desktop/ItemChanges.h"

#include <vector>

namespace tessera {

OriginalCheck checkOriginal(
    const ArchivedItem& archived,
    const ItemChanges& changes,
    const ItemStates& states,
    const std::stop_token& stop)
{
    using Outcome = OriginalCheck::Outcome;
    // Before the walk: what takes the original's place during that is another item than this.
    const std::vector<ItemAnswer> answers
        = states.statesOf({archived.original, archived.archive}, stop);
    const ItemAnswer& original = answers.at(0);
    const ItemAnswer& archive = answers.at(1);
    if (archive.outcome != ItemAnswer::Outcome::Known
        || archive.state.identity != archived.archiveIdentity) {
        return {Outcome::ArchiveGone};
    }
    if (original.outcome != ItemAnswer::Outcome::Known) {
        const bool isGone = original.outcome == ItemAnswer::Outcome::Gone;
        return {isGone ? Outcome::Gone : Outcome::Changed};
    }
    switch (changes.since(archived.original, archived.begun, stop)) {
    case ItemChanges::Answer::None:
        return {Outcome::Same, original.state};
    case ItemChanges::Answer::Gone:
        return {Outcome::Gone};
    default:
        return {Outcome::Changed};
    }
}

} // namespace tessera
