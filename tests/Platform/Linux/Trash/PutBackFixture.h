// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Trash/TrashJournal.h"
#include "support/Machine/TrashFixture.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {

/// Where an item is of which another program may have to make sense.
enum class Whereabouts : std::uint8_t {
    InItsPlace,
    InTheTrash, ///< with an info file that says its place
    Lost, ///< neither
    Twice, ///< both
};

/// Finds the item of that place, which alone holds that text: itself, or in the file at `below` in
/// it, a path that begins with a slash.
Whereabouts whereaboutsOf(
    const std::string& place,
    const std::string& trash,
    const std::string& text,
    const std::string& below = {});

/// The status that the disk has of an item.
FileIdentity identityAt(const std::string& path);

/// Whether it worked, tried often: whoever else makes files on this disk may get the inode that a
/// test is after.
bool succeedsAtLast(const std::function<bool()>& attempt);

/// A trash that keeps a journal in "state", and items that leave it again.
class PutBackFixture : public TrashFixture {
protected:
    PutBackFixture();

    /// Moves the item of that name to the trash, which has to work; a folder's name ends in a
    /// slash.
    TrashedItem trashed(const std::string& name);

    PutBackResult putBack(const TrashedItem& item);
    PutBackResult putBack(const PutBackRequest& request);

    /// The same for what has to be refused: nothing at all may change in the tree but the journal.
    PutBackResult putBackInVain(const PutBackRequest& request);

    std::string infoPath(const std::string& name) const;
    std::string journalText() const;

    /// What the journal tells of the newest move.
    std::optional<TrashRecord> newestRecord() const;

    const std::string m_stateHome = m_tree.pathOf("state");
    const std::shared_ptr<TrashJournal> m_journal;
    const FreedesktopTrash m_keepingTrash;
};

/// The same with an empty file system in memory at "disk".
class PutBackOnAMount : public PutBackFixture {
protected:
    void SetUp() override;

    const std::string m_disk = m_tree.pathOf("disk");
};

} // namespace tessera::test
