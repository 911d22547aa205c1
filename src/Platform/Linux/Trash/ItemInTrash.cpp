// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/ItemInTrash.h"

#include "Platform/Linux/Trash/TrashInfo.h"
#include "Platform/Linux/Trash/TrashItem.h"

#include <cerrno>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

std::string_view parentOf(std::string_view path)
{
    return path.substr(0, path.rfind('/'));
}

bool isSharedTrash(std::string_view path)
{
    return path.ends_with("/.Trash");
}

/// Whether the trash lies where a mount begins, and so is gone while that is not mounted.
bool isTopTrash(std::string_view trash)
{
    return isSharedTrash(parentOf(trash)) || trash.substr(trash.rfind('/')).starts_with("/.Trash-");
}

/// A trash of a mount is in a folder ".Trash" for all users or lies at the top itself; paths in the
/// home's trash are absolute anyway.
std::string topDirectoryOf(std::string_view trash)
{
    const std::string_view parent = parentOf(trash);
    const std::string_view top = isSharedTrash(parent) ? parentOf(parent) : parent;
    return std::string(top.empty() ? "/" : top);
}

TrashPlace withoutFolder(int error, std::string_view trash)
{
    if (error == ENOENT) {
        return isTopTrash(trash) ? TrashPlace::Missing : TrashPlace::HoldsNothing;
    }
    const bool isNoFolder = error == ENOTDIR || error == ELOOP;
    return isNoFolder ? TrashPlace::Missing : TrashPlace::Unreadable;
}

bool isOfAnotherTime(const HeldItem& found, const TrashedItem& wanted)
{
    return found.birth && wanted.birth && *found.birth != *wanted.birth;
}

/// Numbers of devices change when a disk is connected anew; so do, on some file systems, those of
/// inodes. The info file does not.
TrashPlace placeWith(const HeldItem& found, InfoSays info, const TrashedItem& wanted)
{
    if (info == InfoSays::AnotherPath || isOfAnotherTime(found, wanted)) {
        return TrashPlace::HoldsNothing;
    }
    if (info == InfoSays::Unknown) {
        return TrashPlace::Unreadable;
    }
    if (found.status.identity == wanted.identity) {
        return TrashPlace::Holds;
    }
    if (info == InfoSays::Nothing) {
        return TrashPlace::HoldsNothing;
    }
    const bool isSameInode = found.status.identity.inode == wanted.identity.inode;
    return isSameInode ? TrashPlace::Holds : TrashPlace::HoldsSomething;
}

/// What the folder that is open holds.
void lookAt(ItemInTrash& found, const TrashedItem& wanted)
{
    const StatusResult folder = statusOf(found.item.folder.number());
    HeldItem item = holdItemAt(found.item.folder, found.item.name);
    found.folderStatus = folder.status;
    if (item.error != 0 || !folder) {
        found.error = item.error != 0 ? item.error : folder.error;
        found.place = item.error == ENOENT ? TrashPlace::HoldsNothing : TrashPlace::Unreadable;
        return;
    }
    const InfoSays info = found.info.error == 0
        ? infoSays(found.info.folder, found.item.name, wanted.from.path(), found.topDirectory)
        : InfoSays::Nothing;
    found.place = placeWith(item, info, wanted);
    found.error = found.place == TrashPlace::Unreadable ? EIO : 0;
    found.held = std::move(item.held);
}

} // namespace

ItemInTrash findInTrash(const TrashedItem& wanted)
{
    ItemInTrash found;
    const std::string& path = wanted.to.path();
    const std::string_view files = parentOf(path);
    if (!isPlainPath(path) || !files.ends_with("/files")) {
        found.error = EINVAL;
        return found;
    }
    const std::string_view trash = parentOf(files);
    found.topDirectory = topDirectoryOf(trash);
    found.item = openFolderOfWithoutLinks(path);
    if (found.item.error != 0) {
        found.error = found.item.error;
        found.place = withoutFolder(found.error, trash);
        return found;
    }
    found.info = openFolderOfWithoutLinks(std::string(trash) + "/info/" + found.item.name);
    lookAt(found, wanted);
    return found;
}

bool isVeryItem(const HeldItem& found, const TrashedItem& wanted)
{
    return found.error == 0 && found.status.identity == wanted.identity
        && !isOfAnotherTime(found, wanted);
}

} // namespace tessera
