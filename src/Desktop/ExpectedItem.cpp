// SPDX-License-Identifier: MIT
#include "Desktop/ExpectedItem.h"

namespace tessera {

namespace {

/// Whether something is dated since that time, or in the same tick of the clock. What is dated
/// later than now says nothing.
bool isSince(const FileTime& time, const FileTime& date, const FileTime& now)
{
    return !(date < time) && !(now < date);
}

bool isModified(const ExpectedItem& expected, const ItemState& found, const FileTime& now)
{
    return found.modified != expected.state.modified
        || isSince(expected.scanned, found.modified, now);
}

/// Some file systems do not keep the time of changes, others nothing but that.
bool isChanged(const ExpectedItem& expected, const ItemState& found)
{
    if (expected.movedByOtherName && found.changed < *expected.movedByOtherName) {
        return false;
    }
    return found.changed != expected.state.changed || !(found.changed < expected.scanned);
}

} // namespace

bool isSameItem(const ItemState& a, const ItemState& b)
{
    const bool isOfOneBirth = !a.birth || !b.birth || *a.birth == *b.birth;
    return a.kind == b.kind && a.identity == b.identity && isOfOneBirth;
}

ItemChange changeOf(const ExpectedItem& expected, const ItemState& found, const FileTime& now)
{
    if (!isSameItem(found, expected.state)) {
        return ItemChange::OtherItem;
    }
    const bool isFolder = found.kind == ItemState::Kind::Folder;
    if (isFolder && found.birth && isSince(expected.scanned, *found.birth, now)) {
        return ItemChange::MadeSinceScan;
    }
    if (!isModified(expected, found, now) && !isChanged(expected, found)) {
        return ItemChange::None;
    }
    return isFolder ? ItemChange::FolderChanged : ItemChange::Changed;
}

} // namespace tessera
