// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashPutBack.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Files/RenameWithoutReplacing.h"
#include "Platform/Linux/Trash/ItemInTrash.h"
#include "Platform/Linux/Trash/TrashDirectory.h"
#include "Platform/Linux/Trash/TrashInfo.h"
#include "Platform/Linux/Trash/TrashItem.h"
#include "Platform/Linux/Trash/TrashSentences.h"

#include <QtGlobal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace tessera {

namespace {

/// Why an item is not put back, with the errno where one tells more.
struct Refusal {
    PutBackObstacle obstacle = PutBackObstacle::None;
    int error = 0;
};

/// The folder that the item is to go to.
struct PlaceToBe {
    Refusal refusal;
    FileDescriptor folder;
    NewFolders newFolders; ///< go again unless the item came
    std::string madeFolder; ///< the path of the outermost of them; empty when none was made
};

Refusal refusalOf(int error)
{
    switch (error) {
    case EEXIST:
        return {PutBackObstacle::NameTaken, error};
    case ENOENT:
        return {PutBackObstacle::FolderGone, error};
    case ENOTDIR:
        return {PutBackObstacle::FolderReplaced, error};
    case ELOOP:
        return {PutBackObstacle::LinkOnTheWay, error};
    case EXDEV:
        return {PutBackObstacle::OtherDisk, error};
    case EROFS:
        return {PutBackObstacle::ReadOnly, error};
    case EACCES:
    case EPERM:
        return {PutBackObstacle::NoPermission, error};
    case ENOSPC:
    case EDQUOT:
        return {PutBackObstacle::DiskFull, error};
    case kMoveUncertain:
        return {PutBackObstacle::Uncertain, error};
    default:
        return {PutBackObstacle::Failed, error};
    }
}

struct RefusalPattern {
    PutBackObstacle obstacle;
    const char* text;
};

constexpr std::array kRefusalPatterns{
    RefusalPattern{
        PutBackObstacle::NameTaken,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because something new is called '%2' there.")},
    RefusalPattern{
        PutBackObstacle::FolderGone,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because the folder that it was in is not there any more.")},
    RefusalPattern{
        PutBackObstacle::FolderReplaced,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because what was a folder on the way to its place is none any "
            "more.")},
    RefusalPattern{
        PutBackObstacle::LinkOnTheWay,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because a folder on the way to its place has become a link.")},
    RefusalPattern{
        PutBackObstacle::ItemGone,
        QT_TRANSLATE_NOOP(
            "TrashSentences", "'%1' was not put back, because it is not in the trash any more.")},
    RefusalPattern{
        PutBackObstacle::ItemInDoubt,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because it cannot be told whether what is in its place in the "
            "trash is the same item still. Restore it from the trash.")},
    RefusalPattern{
        PutBackObstacle::TrashGone,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because the trash that it is in cannot be found. If its disk "
            "is not connected, connect it and try again.")},
    RefusalPattern{
        PutBackObstacle::OtherDisk,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because its place is on another disk than the trash now. You "
            "can copy it there from the trash.")},
    RefusalPattern{
        PutBackObstacle::ReadOnly,
        QT_TRANSLATE_NOOP(
            "TrashSentences", "'%1' was not put back, because its disk can only be read.")},
    RefusalPattern{
        PutBackObstacle::NoPermission,
        QT_TRANSLATE_NOOP(
            "TrashSentences", "'%1' was not put back, because you have no permission to do so.")},
    RefusalPattern{
        PutBackObstacle::DiskFull,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not put back, because its disk has no space left. Make some and try again.")},
    RefusalPattern{
        PutBackObstacle::Uncertain,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' may be in the trash or where it was, because its disk broke off while it was put "
            "back. Nothing has been removed.")},
};

const char* patternOf(PutBackObstacle obstacle)
{
    const auto* const found
        = std::ranges::find(kRefusalPatterns, obstacle, &RefusalPattern::obstacle);
    return found != kRefusalPatterns.end()
        ? found->text
        //: %2 is what the system says
        : QT_TRANSLATE_NOOP("TrashSentences", "'%1' was not put back: %2.");
}

PutBackResult refused(
    const PutBackRequest& request, const std::string& wantedName, const Refusal& refusal)
{
    const std::string name(request.item.from.lastPathComponent());
    PutBackResult result;
    result.obstacle = refusal.obstacle;
    result.error = trashSentence(
        patternOf(refusal.obstacle),
        name,
        refusal.obstacle == PutBackObstacle::NameTaken
            ? wantedName
            : std::generic_category().message(refusal.error));
    return result;
}

std::string_view folderPathOf(std::string_view path)
{
    return path.substr(0, path.rfind('/'));
}

Refusal refusalOf(const ItemInTrash& found)
{
    switch (found.place) {
    case TrashPlace::Holds:
        return {};
    case TrashPlace::HoldsNothing:
        return {PutBackObstacle::ItemGone, ENOENT};
    case TrashPlace::HoldsSomething:
        return {PutBackObstacle::ItemInDoubt, ESTALE};
    case TrashPlace::Missing:
        return {PutBackObstacle::TrashGone, found.error};
    case TrashPlace::Unreadable:
        break;
    }
    return refusalOf(found.error);
}

/// Makes the folders inside each other, the last one first, as any other program would.
int makeFolders(PlaceToBe& place, std::vector<std::string> missing)
{
    constexpr mode_t kMode = 0777; // of which the system takes what the user's umask says
    constexpr int kFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    for (; !missing.empty(); missing.pop_back()) {
        const std::string& name = missing.back();
        if (const int error = place.newFolders.make(place.folder, name, kMode); error != 0) {
            return error;
        }
        place.folder = FileDescriptor(::openat(place.folder.number(), name.c_str(), kFlags));
        if (!place.folder.isOpen()) {
            return errno;
        }
    }
    return 0;
}

/// Opens the folder that the path's item was in.
PlaceToBe openPlace(std::string path, const FileStatus& trash, MissingFolders missingFolders)
{
    PlaceToBe place;
    std::vector<std::string> missing;
    NamedPlace found = openFolderOfWithoutLinks(path);
    while (found.error == ENOENT && path.rfind('/') != 0) {
        path.resize(path.rfind('/'));
        missing.emplace_back(lastPathComponent(path));
        found = openFolderOfWithoutLinks(path);
    }
    const StatusResult status = statusOf(found.folder.number());
    if (found.error != 0 || !status) {
        place.refusal = refusalOf(found.error != 0 ? found.error : status.error);
    } else if (!isOnSameMount(status.status, trash)) {
        place.refusal = {PutBackObstacle::OtherDisk, EXDEV};
    } else if (!missing.empty() && missingFolders == MissingFolders::Refuse) {
        place.refusal = {PutBackObstacle::FolderGone, ENOENT};
    } else {
        place.folder = std::move(found.folder);
        place.madeFolder = missing.empty() ? std::string() : path;
        const int error = makeFolders(place, std::move(missing));
        place.refusal = error == 0 ? Refusal() : refusalOf(error);
    }
    return place;
}

/// A name like it that nothing has in the folder; empty when there is none.
std::string freeNameIn(const FileDescriptor& folder, const std::string& name)
{
    constexpr unsigned kMaxNumber = 10'000;
    constexpr long kMaxNameBytes = 255;
    const long limit = ::fpathconf(folder.number(), _PC_NAME_MAX);
    const auto maxBytes
        = static_cast<std::size_t>(limit > 0 ? std::min(limit, kMaxNameBytes) : kMaxNameBytes);
    int error = 0;
    for (unsigned number = 2; error == 0 && number <= kMaxNumber; ++number) {
        std::string numbered = numberedName(name, number, maxBytes);
        error = statusAt(folder.number(), numbered.c_str()).error;
        if (error == ENOENT) {
            return numbered;
        }
    }
    return {};
}

/// Whether the rename took another item than the one that was looked at, one that was somewhere
/// else by its info file. What has taken the item's name outside the trash since is what was saved
/// there, and is left alone.
bool isAnothers(
    const ItemInTrash& found,
    const PlaceToBe& place,
    const std::string& name,
    const TrashedItem& item)
{
    return isAnotherItemAt(place.folder, name, found.held) && found.info.error == 0
        && infoSays(found.info.folder, found.item.name, item.from.path(), found.topDirectory)
        == InfoSays::AnotherPath;
}

/// What should not have left the trash goes back there over nothing; its info file has stayed.
Refusal takeBack(
    const ItemInTrash& found,
    const PlaceToBe& place,
    const std::string& name,
    const Refusal& because)
{
    const int error
        = renameWithoutReplacing({place.folder, name}, {found.item.folder, found.item.name});
    return error == 0 ? because : Refusal{PutBackObstacle::Uncertain, error};
}

/// Says what has become of the folder if it is no longer where its path says. While it is open here
/// it can be moved, to the trash for instance, and whatever is renamed into it follows it there.
Refusal whereItsFolderWent(const PlaceToBe& place, const std::string& path)
{
    const NamedPlace now = openFolderOfWithoutLinks(path);
    if (now.error != 0) {
        return refusalOf(now.error);
    }
    const StatusResult expected = statusOf(place.folder.number());
    const StatusResult found = statusOf(now.folder.number());
    const bool isSame = expected && found && expected.status.identity == found.status.identity;
    return isSame ? Refusal() : Refusal{PutBackObstacle::FolderGone, ENOENT};
}

/// Removes what the trash knows of an item that has left it, once that is on the disk for good:
/// else a power cut could bring the item back to the trash without its info file.
void forgetInTrash(const ItemInTrash& found, const PlaceToBe& place, const TrashedItem& item)
{
    if (found.info.error == 0 && place.newFolders.sync() == 0 && syncFolder(place.folder) == 0
        && syncFolder(found.item.folder) == 0) {
        removeTrashInfoOf(found.info.folder, found.item.name, item.from.path(), found.topDirectory);
    }
}

/// Moves the item, and then removes what the trash knows of it.
Refusal moveOut(
    const ItemInTrash& found,
    const PlaceToBe& place,
    const std::string& name,
    const TrashedItem& item)
{
    const NamedPlace& from = found.item;
    if (isAnotherItemAt(from.folder, from.name, found.held)) {
        return {PutBackObstacle::ItemGone, ENOENT};
    }
    const std::string& path = item.from.path();
    const Refusal before = whereItsFolderWent(place, path);
    if (before.obstacle != PutBackObstacle::None) {
        return before;
    }
    const int error = renameWithoutReplacing({from.folder, from.name}, {place.folder, name});
    if (error != 0) {
        const bool isGone
            = error == ENOENT && statusAt(from.folder.number(), from.name.c_str()).error == ENOENT;
        return isGone ? Refusal{PutBackObstacle::ItemGone, error} : refusalOf(error);
    }
    if (isAnothers(found, place, name, item)) {
        // It took the name in the trash between the last look and the rename.
        return takeBack(found, place, name, {PutBackObstacle::ItemGone, ENOENT});
    }
    const Refusal after = whereItsFolderWent(place, path);
    if (after.obstacle != PutBackObstacle::None) {
        return takeBack(found, place, name, after);
    }
    forgetInTrash(found, place, item);
    return {};
}

/// The item itself is asked: its name may be another item's by now.
PutBackResult putBackAt(const Url& target, const ItemInTrash& found, const PlaceToBe& place)
{
    PutBackResult result;
    result.place = target;
    if (!place.madeFolder.empty()) {
        result.madeFolder = Url(place.madeFolder, true);
    }
    if (const StatusResult item = statusOf(found.held.number())) {
        const FileStatus& status = item.status;
        result.item = {status.identity, birthTimeOf(found.held.number()), status.linkCount, {}};
        if (!status.isDirectory) {
            result.item.bytes = status.allocatedBytes;
        }
    }
    return result;
}

} // namespace

PutBackResult putBackFromTrash(
    const PutBackRequest& request, const std::function<void(const Url& place)>& aboutToMove)
{
    const TrashedItem& item = request.item;
    const std::string& path = item.from.path();
    const std::string name(request.name.empty() ? item.from.lastPathComponent() : request.name);
    if (!isPlainPath(path) || !isPlainPath('/' + name) || name.find('/') != std::string::npos) {
        return refused(request, name, {PutBackObstacle::Failed, EINVAL});
    }
    const ItemInTrash found = findInTrash(item);
    if (found.place != TrashPlace::Holds) {
        return refused(request, name, refusalOf(found));
    }
    const PlaceToBe place = openPlace(path, found.folderStatus, request.missingFolders);
    const Url target(std::string(folderPathOf(path)) + '/' + name, item.from.isDirectory());
    Refusal refusal = place.refusal;
    if (refusal.obstacle == PutBackObstacle::None) {
        refusal = statusAt(place.folder.number(), name.c_str()) ? refusalOf(EEXIST) : Refusal();
    }
    if (refusal.obstacle == PutBackObstacle::None) {
        aboutToMove(target);
        refusal = moveOut(found, place, name, item);
    }
    if (refusal.obstacle != PutBackObstacle::None) {
        PutBackResult result = refused(request, name, refusal);
        if (refusal.obstacle == PutBackObstacle::NameTaken) {
            result.freeName = freeNameIn(place.folder, std::string(item.from.lastPathComponent()));
        }
        return result;
    }
    return putBackAt(target, found, place);
}

} // namespace tessera
