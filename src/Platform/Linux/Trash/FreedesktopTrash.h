// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"
#include "Platform/Linux/Mounts/MountTable.h"

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace tessera {

class TrashJournal;
struct TrashDirectoryResult;
enum class OtherItem : bool;
struct Expectation;
struct TrashItem;

/// Whose trash it is, and which folders make up that user's surroundings.
struct TrashUser {
    uid_t id = 0;
    std::string homeTrash; ///< absolute path of the trash for what lies on the home's mount
    std::vector<std::string> homes; ///< absolute paths of folders that must stay where they are

    /// The user whose rights the process has, by the environment and the password database.
    static TrashUser current();
};

/// The desktop's trash, as other programs on it know it:
/// https://specifications.freedesktop.org/trash-spec/1.0/
///
/// An item only ever moves within its mount, in one step, and never onto another one; nothing is
/// copied, and nothing in the trash is removed but the info file of what is put back. The optional
/// file "directorysizes" is not written: it is a cache that its readers bring up to date by
/// themselves, and computing an entry would mean to walk the whole folder.
///
/// Calls block for as long as the file systems take. Callable from any thread, from several at
/// once.
class FreedesktopTrash {
public:
    /// What is mounted where; nothing when the system does not tell, and then nothing is moved.
    using Mounts = std::function<std::optional<MountTable>()>;

    /// With a journal, every move is entered there before it is done. One that cannot be written
    /// holds up no move.
    explicit FreedesktopTrash(TrashUser user, std::shared_ptr<TrashJournal> journal = nullptr);
    /// Tests pass mounts of their own.
    FreedesktopTrash(
        TrashUser user, Mounts mounts, std::shared_ptr<TrashJournal> journal = nullptr);

    /// Moves the items, one after the other. What would be reached over a link stays: the paths
    /// come from scans, which follow none, so it was put there since.
    [[nodiscard]] RecycleResult recycle(const std::vector<ItemToRecycle>& items) const;

    /// Moves one file, whichever of the places it is at; what else is there stays.
    [[nodiscard]] RecycleResult recycleFile(
        const FileIdentity& file, const std::vector<Url>& places) const;

    /// Puts an item back as putBackFromTrash() does, and enters that.
    [[nodiscard]] PutBackResult putBack(const PutBackRequest& request) const;

private:
    struct Outcome {
        std::string error;
        TrashedItem trashed;
        bool hasGrown = false; ///< or has changed otherwise, as a folder may
        std::optional<Url> mayBeAt = {}; ///< as NotRecycled has it
    };

    using Files = std::unordered_set<FileIdentity, FileIdentityHash>;

    /// `moved` are those that this very call has moved, by other names.
    Outcome move(const ItemToRecycle& item, const Files& moved) const;
    Outcome move(
        const TrashItem& item,
        std::optional<std::uint64_t> bytes,
        OtherItem otherItem,
        Expectation& expected) const;
    static void add(RecycleResult& result, const Url& from, Outcome outcome);

    /// Why the item must stay where it is, as a sentence; empty when it need not.
    std::string refusal(const TrashItem& item, const MountTable& mounts) const;
    bool isInTrash(const TrashItem& item, const MountTable& mounts) const;
    TrashDirectoryResult openTrashFor(const TrashItem& item, const MountTable& mounts) const;

    TrashUser m_user;
    Mounts m_mounts;
    std::shared_ptr<TrashJournal> m_journal; ///< null where none is kept
};

} // namespace tessera
