// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/FreedesktopTrash.h"

#include "Platform/Linux/Files/RealPath.h"
#include "Platform/Linux/Files/RenameWithoutReplacing.h"
#include "Platform/Linux/Mounts/MountBoundary.h"
#include "Platform/Linux/Mounts/MountTable.h"
#include "Platform/Linux/Process/LinuxUserAccount.h"
#include "Platform/Linux/Trash/TrashDirectory.h"
#include "Platform/Linux/Trash/TrashInfo.h"
#include "Platform/Linux/Trash/TrashItem.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <utility>

namespace tessera {

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

std::string refusalSentence(const TrashItem& item, const std::string& reason)
{
    return '\'' + item.name + "' cannot be moved to the trash, because " + reason + '.';
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

/// Moves the item into the trash under that name. 0, or the errno; then nothing has changed, except
/// that what may be in the trash keeps its info file.
int moveAs(const std::string& name, const TrashItem& item, const TrashDirectory& trash)
{
    const int infoError = makeTrashInfo(trash.info, name, originalPath(item, trash));
    if (infoError != 0) {
        return infoError;
    }
    const int error = renameWithoutReplacing({item.parent, item.name}, {trash.files, name});
    if (error != 0 && error != kMoveUncertain) {
        removeTrashInfo(trash.info, name);
    }
    return error;
}

/// Moves the item into the trash under the first name that is free there, which `name` becomes.
int moveInto(const TrashDirectory& trash, const TrashItem& item, std::string& name)
{
    constexpr unsigned kMaxNumber = 1'000'000;
    const std::size_t maxBytes = maxNameBytes(trash);
    int error = EEXIST;
    for (unsigned number = 1; error == EEXIST && number <= kMaxNumber; ++number) {
        name = trashName(item.name, number, maxBytes);
        error = moveAs(name, item, trash);
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

FreedesktopTrash::FreedesktopTrash(TrashUser user)
    : FreedesktopTrash(std::move(user), [] { return MountTable::ofThisProcess(); })
{
}

FreedesktopTrash::FreedesktopTrash(TrashUser user, Mounts mounts)
    : m_user(std::move(user))
    , m_mounts(std::move(mounts))
{
}

RecycleResult FreedesktopTrash::recycle(const std::vector<Url>& urls) const
{
    RecycleResult result;
    for (const Url& url : urls) {
        Outcome outcome = move(url);
        if (outcome.error.empty()) {
            result.newUrls.insert_or_assign(url.absoluteString(), std::move(outcome.newUrl));
        } else if (result.error.empty()) {
            result.error = std::move(outcome.error);
        }
    }
    return result;
}

RecycleResult FreedesktopTrash::recycleFile(
    const FileIdentity& file, const std::vector<Url>& places) const
{
    RecycleResult result;
    for (const Url& place : places) {
        const TrashItemResult found = findTrashItem(place);
        if (!found) {
            result.error = found.error;
        } else if (found.item.status.identity == file) {
            Outcome outcome = move(found.item);
            result.error = std::move(outcome.error);
            if (result.error.empty()) {
                result.newUrls.insert_or_assign(place.absoluteString(), std::move(outcome.newUrl));
            }
            return result;
        } else {
            result.error = trashErrorSentence(found.item.name, ENOENT);
        }
    }
    return result;
}

FreedesktopTrash::Outcome FreedesktopTrash::move(const Url& url) const
{
    const TrashItemResult found = findTrashItem(url);
    return found ? move(found.item) : Outcome{found.error, {}};
}

FreedesktopTrash::Outcome FreedesktopTrash::move(const TrashItem& item) const
{
    const std::optional<MountTable> mounts = m_mounts();
    if (!mounts) {
        return {refusalSentence(item, "the system does not say which disks are mounted"), {}};
    }
    if (std::string refused = refusal(item, *mounts); !refused.empty()) {
        return {std::move(refused), {}};
    }
    const TrashDirectoryResult opened = openTrashFor(item, *mounts);
    if (!opened) {
        return {noTrashSentence(item.name, opened.error), {}};
    }
    std::string name;
    if (const int error = moveInto(opened.trash, item, name); error != 0) {
        return {trashErrorSentence(item.name, error), {}};
    }
    return {{}, Url(opened.trash.path + "/files/" + name, item.status.isDirectory)};
}

std::string FreedesktopTrash::refusal(const TrashItem& item, const MountTable& mounts) const
{
    if (isMountPoint(item)) {
        return refusalSentence(item, "a disk is mounted there");
    }
    if (mounts.hasMountInside(item.path)) {
        // Emptying the trash would empty that disk.
        return refusalSentence(item, "a disk is mounted inside it");
    }
    for (const std::string& home : m_user.homes) {
        if (leadsTo(home, item)) {
            return refusalSentence(item, "your home folder is there");
        }
    }
    if (leadsTo(m_user.homeTrash, item)) {
        return refusalSentence(item, "the trash is there");
    }
    if (isInTrash(item, mounts)) {
        return refusalSentence(item, "it is in the trash already");
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
