// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/FreedesktopTrash.h"

#include "Base/FileTime.h"
#include "Platform/Linux/Files/LinuxItemStates.h"
#include "Platform/Linux/Files/RealPath.h"
#include "Platform/Linux/Files/RenameWithoutReplacing.h"
#include "Platform/Linux/Mounts/MountBoundary.h"
#include "Platform/Linux/Mounts/MountTable.h"
#include "Platform/Linux/Process/LinuxUserAccount.h"
#include "Platform/Linux/Trash/TrashDirectory.h"
#include "Platform/Linux/Trash/TrashInfo.h"
#include "Platform/Linux/Trash/TrashItem.h"
#include "Platform/Linux/Trash/TrashJournal.h"
#include "Platform/Linux/Trash/TrashPutBack.h"
#include "Platform/Linux/Trash/TrashSentences.h"

#include <QtGlobal>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <utility>

namespace tessera {

/// What is to happen when another item takes an item's name right before the rename.
enum class OtherItem : bool {
    Stays,
    Moves, ///< if it is of the same kind: the user named a place, and a program saves by renaming
};

/// What an item that moves is to be, and what has become of it.
struct Expectation {
    const ExpectedItem* item = nullptr; ///< null where anything will do
    bool hasMoved = false; ///< another name of the item just now, which is a change of the file
    ItemChange change = ItemChange::None; ///< at the last look

    void compareWith(const FileStatus& status, std::optional<std::uint64_t> birth);
    [[nodiscard]] bool isMet() const
    {
        return change == ItemChange::None || change == ItemChange::FolderChanged;
    }
};

namespace {

std::string dataHome(const std::string& home)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): what is set while threads run has room already
    const char* const set = std::getenv("XDG_DATA_HOME");
    return set != nullptr && *set == '/' ? set : home + "/.local/share";
}

std::string withoutLinks(const std::string& path)
{
    return realPath(path).value_or(path);
}

/// Whether the item is what one of the path's components names, a link among them included.
bool isOnTheWayTo(const std::string& path, const TrashItem& item)
{
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const std::string part = path.substr(0, end);
        const StatusResult found = statusAt(AT_FDCWD, part.c_str());
        if (found && found.status.identity == item.status.identity) {
            return true;
        }
        if (!found || end == std::string::npos) {
            return false;
        }
    }
}

/// The same for the path as it stands and for where its links lead.
bool leadsTo(const std::string& path, const TrashItem& item)
{
    return isOnTheWayTo(path, item) || isOnTheWayTo(withoutLinks(path), item);
}

/// Whether the item is the one that was meant, where that was said.
bool isWanted(const TrashItem& found, const ItemToRecycle& wanted)
{
    const bool isSame = !wanted.identity || found.status.identity == *wanted.identity;
    return isSame && (!wanted.birth || !found.birth || *found.birth == *wanted.birth);
}

} // namespace

void Expectation::compareWith(const FileStatus& status, std::optional<std::uint64_t> birth)
{
    if (item != nullptr) {
        ItemState found = itemStateOf(status, birth);
        found.changed = hasMoved ? item->state.changed : found.changed;
        change = changeOf(*item, found, timeAfterChanges());
    }
}

namespace {

/// Why the item stays, as a sentence; empty when it may go.
std::string changeSentence(const TrashItem& item, ItemChange change)
{
    switch (change) {
    case ItemChange::Changed:
        return trashSentence(
            QT_TRANSLATE_NOOP(
                "TrashSentences", "'%1' was not moved, because it has changed since the scan."),
            item.name);
    case ItemChange::OtherItem:
        return trashSentence(
            QT_TRANSLATE_NOOP(
                "TrashSentences",
                "'%1' was not moved, because another item has taken its name since the scan."),
            item.name);
    case ItemChange::MadeSinceScan:
        return trashSentence(
            QT_TRANSLATE_NOOP(
                "TrashSentences", "'%1' was not moved, because it was made after the scan began."),
            item.name);
    case ItemChange::None:
    case ItemChange::FolderChanged:
        break;
    }
    return {};
}

bool isMountPoint(const TrashItem& item)
{
    // Of files only the kernel itself can tell: some file systems give them a device of their own.
    return item.status.isDirectory ? MountBoundary(item.parentStatus).isCrossedBy(item.status)
                                   : item.status.isMountRoot.value_or(false);
}

std::string originalPath(const TrashItem& item, const TrashDirectory& trash)
{
    if (trash.topDirectory.empty()) {
        return item.path;
    }
    const std::size_t start = trash.topDirectory == "/" ? 1 : trash.topDirectory.size() + 1;
    return item.path.substr(start);
}

/// How long names may be on the trash's disk, and nowhere longer than other programs can read.
std::size_t maxNameBytes(const TrashDirectory& trash)
{
    constexpr long kMaxNameBytes = 255;
    const long limit = ::fpathconf(trash.info.number(), _PC_NAME_MAX);
    return static_cast<std::size_t>(limit > 0 ? std::min(limit, kMaxNameBytes) : kMaxNameBytes);
}

/// As an errno, of an item that has changed while it was about to move.
constexpr int kHasChanged = ESTALE;

/// An item on its way into a trash.
struct TrashMove {
    const TrashItem& item;
    const TrashDirectory& trash;
    std::optional<std::uint64_t> bytes; ///< its size, where that is known
    OtherItem otherItem;
    Expectation& expected;
    TrashJournal* journal; ///< null where none is kept

    [[nodiscard]] std::uint64_t begin(const TrashedItem& trashed) const
    {
        return journal == nullptr ? 0 : journal->begin(trashed, bytes);
    }

    /// 0 means that it has moved; where nobody can tell, the next reader of the journal looks.
    void note(const TrashedItem& trashed, int error) const
    {
        if (journal != nullptr && error != kMoveUncertain) {
            journal->note(trashed.number, error == 0 ? TrashState::Moved : TrashState::NotMoved);
        }
    }
};

/// Moves what has come into the trash under that name back where it was. Whether it went.
bool takeOutAgain(const std::string& name, const TrashMove& move)
{
    return renameWithoutReplacing({move.trash.files, name}, {move.item.parent, move.item.name})
        == 0;
}

/// While the entry was written another program may have emptied the trash, down to the info file of
/// no item: then it is made again, or the item goes back. 0, or the errno.
int ensureInfo(const std::string& name, const TrashMove& move)
{
    const std::string infoName = name + std::string(kTrashInfoSuffix);
    if (statusAt(move.trash.info.number(), infoName.c_str()).error != ENOENT) {
        return 0;
    }
    const int error = makeTrashInfo(move.trash.info, name, originalPath(move.item, move.trash));
    const bool isThere = error == 0 || error == EEXIST;
    return isThere || !takeOutAgain(name, move) ? 0 : error;
}

/// Looks at what has come into the trash. Where another item came it goes back, or `trashed` and
/// the journal say which one it is. 0, or the errno.
int checkArrival(const std::string& name, const TrashMove& move, TrashedItem& trashed)
{
    const HeldItem came = holdItemAt(move.trash.files, name);
    const StatusResult held = statusOf(move.item.held.number());
    const bool isOther = came.error == 0 && held && came.status.identity != held.status.identity;
    const bool mayStay = move.otherItem == OtherItem::Moves
        && came.status.isDirectory == move.item.status.isDirectory;
    if (isOther && !mayStay && takeOutAgain(name, move)) {
        removeTrashInfo(move.trash.info, name);
        return ENOENT;
    }
    if (const int error = ensureInfo(name, move); error != 0) {
        return error;
    }
    // Some file systems count an item anew when it is renamed.
    const std::optional<std::uint64_t> birth = came.birth ? came.birth : trashed.birth;
    if (came.error == 0 && (came.status.identity != trashed.identity || birth != trashed.birth)) {
        move.note(trashed, ENOENT);
        trashed.identity = came.status.identity;
        trashed.birth = birth;
        trashed.number = move.begin(trashed);
    }
    return 0;
}

/// Whether the item is still what was to move: the info file and the entry may have taken their
/// time. 0, or the errno.
int lookAgain(const TrashMove& move)
{
    const TrashItem& item = move.item;
    if (isAnotherItemAt(item.parent, item.name, item.held)) {
        return ENOENT;
    }
    if (const StatusResult held = statusOf(item.held.number())) {
        move.expected.compareWith(held.status, item.birth);
    }
    return move.expected.isMet() ? 0 : kHasChanged;
}

/// Moves the item into the trash under that name, of which the info file is made. 0, or the errno.
int moveBesideInfo(const std::string& name, const TrashMove& move, TrashedItem& trashed)
{
    const TrashItem& item = move.item;
    if (const int error = lookAgain(move); error != 0) {
        removeTrashInfo(move.trash.info, name);
        return error;
    }
    const int error = renameWithoutReplacing({item.parent, item.name}, {move.trash.files, name});
    if (error == 0) {
        return checkArrival(name, move, trashed);
    }
    if (error != kMoveUncertain) {
        removeTrashInfo(move.trash.info, name);
    }
    return error;
}

/// Moves the item into the trash under that name. 0, or the errno; then nothing has changed, except
/// that what may be in the trash keeps its info file.
int moveAs(const std::string& name, const TrashMove& move, TrashedItem& trashed)
{
    const TrashItem& item = move.item;
    const TrashDirectory& trash = move.trash;
    const int infoError = makeTrashInfo(trash.info, name, originalPath(item, trash));
    if (infoError != 0) {
        return infoError;
    }
    if (statusAt(trash.files.number(), name.c_str())) {
        // Some program left it there without an info file. No move to this name is begun.
        removeTrashInfo(trash.info, name);
        return EEXIST;
    }
    trashed.to = Url(trash.path + "/files/" + name, item.status.isDirectory);
    trashed.number = move.begin(trashed);
    const int error = moveBesideInfo(name, move, trashed);
    move.note(trashed, error);
    return error;
}

/// Moves the item into the trash under the first name that is free there, and says in `trashed`
/// where it is.
int moveInto(const TrashMove& move, TrashedItem& trashed)
{
    constexpr unsigned kMaxNumber = 1'000'000;
    const std::size_t maxBytes = maxNameBytes(move.trash);
    int error = EEXIST;
    for (unsigned number = 1; error == EEXIST && number <= kMaxNumber; ++number) {
        error = moveAs(trashName(move.item.name, number, maxBytes), move, trashed);
    }
    return error;
}

} // namespace

TrashUser TrashUser::current()
{
    const LinuxUserAccount account;
    TrashUser user;
    user.id = ::geteuid();
    user.homes.push_back(account.homeDirectory());
    if (const auto entry = account.realUser()) {
        user.homes.push_back(entry->directory);
    }
    user.homeTrash = dataHome(account.homeDirectory()) + "/Trash";
    return user;
}

FreedesktopTrash::FreedesktopTrash(TrashUser user, std::shared_ptr<TrashJournal> journal)
    : FreedesktopTrash(
        std::move(user), [] { return MountTable::ofThisProcess(); }, std::move(journal))
{
}

FreedesktopTrash::FreedesktopTrash(
    TrashUser user, Mounts mounts, std::shared_ptr<TrashJournal> journal)
    : m_user(std::move(user))
    , m_mounts(std::move(mounts))
    , m_journal(std::move(journal))
{
}

RecycleResult FreedesktopTrash::recycle(const std::vector<ItemToRecycle>& items) const
{
    RecycleResult result;
    Files moved;
    for (const ItemToRecycle& item : items) {
        add(result, item.url, move(item, moved));
        if (!result.trashed.empty()) {
            moved.insert(result.trashed.back().identity);
        }
    }
    result.journalError = m_journal == nullptr ? std::string() : m_journal->takeError();
    return result;
}

RecycleResult FreedesktopTrash::recycleFile(
    const FileIdentity& file, const std::vector<Url>& places) const
{
    RecycleResult result;
    Expectation any;
    for (const Url& place : places) {
        const TrashItemResult found = findTrashItem(place);
        if (!found) {
            result.error = found.error;
        } else if (found.item.status.identity == file) {
            result.error.clear();
            add(result,
                place,
                move(found.item, found.item.status.allocatedBytes, OtherItem::Stays, any));
            return result;
        } else {
            result.error = trashErrorSentence(found.item.name, ENOENT);
        }
    }
    return result;
}

PutBackResult FreedesktopTrash::putBack(const PutBackRequest& request) const
{
    const std::uint64_t number = m_journal == nullptr ? 0 : request.item.number;
    PutBackResult result = putBackFromTrash(request, [this, number](const Url& place) {
        if (number != 0) {
            m_journal->beginReturn(number, place);
        }
    });
    if (number != 0 && result.obstacle == PutBackObstacle::None) {
        m_journal->note(number, TrashState::PutBack, result.place);
    }
    return result;
}

void FreedesktopTrash::add(RecycleResult& result, const Url& from, Outcome outcome)
{
    if (outcome.error.empty()) {
        result.newUrls.insert_or_assign(from.absoluteString(), outcome.trashed.to);
        if (outcome.hasGrown) {
            result.grownFolders.push_back(from);
        }
        result.trashed.push_back(std::move(outcome.trashed));
    } else {
        result.error = result.error.empty() ? outcome.error : result.error;
        result.notMoved.push_back({from, std::move(outcome.error), std::move(outcome.mayBeAt)});
    }
}

FreedesktopTrash::Outcome FreedesktopTrash::move(
    const ItemToRecycle& item, const Files& moved) const
{
    const TrashItemResult found = findTrashItem(item.url);
    if (!found) {
        return {found.error, {}};
    }
    if (!isWanted(found.item, item)) {
        return {refusalSentence(TrashRefusal::OtherItem, found.item.name), {}};
    }
    Expectation expected{
        item.expected ? &*item.expected : nullptr, moved.contains(found.item.status.identity)};
    expected.compareWith(found.item.status, found.item.birth);
    if (!expected.isMet()) {
        return {changeSentence(found.item, expected.change), {}};
    }
    const bool isThatVeryItem = item.identity || item.expected;
    const OtherItem otherItem = isThatVeryItem ? OtherItem::Stays : OtherItem::Moves;
    Outcome outcome = move(found.item, item.bytes, otherItem, expected);
    outcome.hasGrown = expected.change == ItemChange::FolderChanged;
    return outcome;
}

FreedesktopTrash::Outcome FreedesktopTrash::move(
    const TrashItem& item,
    std::optional<std::uint64_t> bytes,
    OtherItem otherItem,
    Expectation& expected) const
{
    const std::optional<MountTable> mounts = m_mounts();
    if (!mounts) {
        return {refusalSentence(TrashRefusal::MountsUnknown, item.name), {}};
    }
    if (std::string refused = refusal(item, *mounts); !refused.empty()) {
        return {std::move(refused), {}};
    }
    const TrashDirectoryResult opened = openTrashFor(item, *mounts);
    if (!opened) {
        return {noTrashSentence(item.name, opened.error), {}};
    }
    TrashedItem trashed;
    trashed.from = Url(item.path, item.status.isDirectory);
    trashed.identity = item.status.identity;
    trashed.birth = item.birth;
    const int error
        = moveInto({item, opened.trash, bytes, otherItem, expected, m_journal.get()}, trashed);
    if (!expected.isMet()) {
        return {changeSentence(item, expected.change), {}};
    }
    if (error != 0) {
        Outcome stayed{trashErrorSentence(item.name, error), {}};
        if (error == kMoveUncertain) {
            stayed.mayBeAt = trashed.to;
        }
        return stayed;
    }
    return {{}, std::move(trashed)};
}

std::string FreedesktopTrash::refusal(const TrashItem& item, const MountTable& mounts) const
{
    if (isMountPoint(item)) {
        return refusalSentence(TrashRefusal::MountPoint, item.name);
    }
    if (mounts.hasMountInside(item.path)) {
        // Emptying the trash would empty that disk.
        return refusalSentence(TrashRefusal::MountInside, item.name);
    }
    for (const std::string& home : m_user.homes) {
        if (leadsTo(home, item)) {
            return refusalSentence(TrashRefusal::HomeFolder, item.name);
        }
    }
    if (leadsTo(m_user.homeTrash, item)) {
        return refusalSentence(TrashRefusal::HoldsTrash, item.name);
    }
    if (isInTrash(item, mounts)) {
        return refusalSentence(TrashRefusal::InTrash, item.name);
    }
    return {};
}

bool FreedesktopTrash::isInTrash(const TrashItem& item, const MountTable& mounts) const
{
    const std::optional<Mount> mount = mounts.mountOf(item.path, item.parentStatus.mountId);
    return isAtOrInside(item.path, withoutLinks(m_user.homeTrash))
        || (mount && isInTopTrash(item.path, mount->point));
}

TrashDirectoryResult FreedesktopTrash::openTrashFor(
    const TrashItem& item, const MountTable& mounts) const
{
    if (isTrashOnMountOf(item.parentStatus, m_user.homeTrash)) {
        return openHomeTrash(m_user.homeTrash);
    }
    const std::optional<Mount> mount = mounts.mountOf(item.path, item.parentStatus.mountId);
    if (!mount) {
        TrashDirectoryResult unknown;
        unknown.error = ENODEV;
        return unknown;
    }
    return openTopTrash(mount->point, m_user.id);
}

} // namespace tessera
