// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashItem.h"

#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Files/RenameWithoutReplacing.h"
#include "Platform/Linux/Trash/TrashSentences.h"

#include <QtGlobal>

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <string_view>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

std::string changedKindSentence(const std::string& name, bool isDirectory)
{
    return trashSentence(
        isDirectory ? QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved, because it has changed since the scan: it is a folder now.")
                    : QT_TRANSLATE_NOOP(
                        "TrashSentences",
                        "'%1' was not moved, because it has changed since the scan: it is no "
                        "folder any more."),
        name);
}

TrashItemResult failure(std::string sentence)
{
    TrashItemResult result;
    result.error = std::move(sentence);
    return result;
}

} // namespace

bool isPlainPath(std::string_view path)
{
    if (!path.starts_with('/')) {
        return false;
    }
    while (!path.empty()) {
        path.remove_prefix(1);
        const std::string_view name = path.substr(0, path.find('/'));
        if (name.empty() || name == "." || name == "..") {
            return false;
        }
        path.remove_prefix(name.size());
    }
    return true;
}

TrashItemResult findTrashItem(const Url& url)
{
    TrashItemResult result;
    TrashItem& item = result.item;
    item.name = url.lastPathComponent();
    item.path = url.path();
    if (!isPlainPath(item.path)) {
        return failure(trashSentence(
            QT_TRANSLATE_NOOP("TrashSentences", "'%1' cannot be moved to the trash."), item.path));
    }
    if (item.path.size() >= PATH_MAX) {
        // No program could put it back.
        return failure(trashErrorSentence(item.name, ENAMETOOLONG));
    }
    NamedPlace place = openFolderOfWithoutLinks(item.path);
    if (place.error != 0) {
        return failure(trashErrorSentence(item.name, place.error));
    }
    item.parent = std::move(place.folder);
    const StatusResult parent = statusOf(item.parent.number());
    HeldItem found = holdItemAt(item.parent, item.name);
    if (!parent || found.error != 0) {
        return failure(trashErrorSentence(item.name, parent ? found.error : parent.error));
    }
    item.parentStatus = parent.status;
    item.status = found.status;
    item.held = std::move(found.held);
    item.birth = found.birth;
    if (item.status.isDirectory != url.isDirectory()) {
        return failure(changedKindSentence(item.name, item.status.isDirectory));
    }
    return result;
}

namespace {

struct TrashErrorPattern {
    int error;
    const char* text;
};

constexpr std::array kTrashErrorPatterns{
    TrashErrorPattern{
        ENOENT,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because it is not there any more.")},
    TrashErrorPattern{
        ENOTDIR,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because it is not there any more.")},
    TrashErrorPattern{
        EACCES,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because you have no permission to do so.")},
    TrashErrorPattern{
        EPERM,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because you have no permission to do so.")},
    TrashErrorPattern{
        ELOOP,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because a folder on the way to it has become a link "
            "since the scan.")},
    TrashErrorPattern{
        EROFS,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because its disk can only be read.")},
    TrashErrorPattern{
        ENOSPC,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because its disk has no space left.")},
    TrashErrorPattern{
        EDQUOT,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because its disk has no space left.")},
    TrashErrorPattern{
        EXDEV,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' was not moved to the trash, because it could only be copied there.")},
    TrashErrorPattern{
        EBUSY,
        QT_TRANSLATE_NOOP(
            "TrashSentences", "'%1' was not moved to the trash, because the system is using it.")},
    TrashErrorPattern{
        kMoveUncertain,
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "'%1' may be in the trash or where it was, because its disk broke off while it was "
            "moved. Nothing has been removed.")},
    TrashErrorPattern{
        ENAMETOOLONG,
        QT_TRANSLATE_NOOP(
            "TrashSentences", "'%1' was not moved to the trash, because its path is too long.")},
};

} // namespace

std::string trashErrorSentence(const std::string& name, int error)
{
    const auto* const found
        = std::ranges::find(kTrashErrorPatterns, error, &TrashErrorPattern::error);
    return found != kTrashErrorPatterns.end()
        ? trashSentence(found->text, name)
        : trashSentence(
            //: %2 is what the system says
            QT_TRANSLATE_NOOP("TrashSentences", "'%1' was not moved to the trash: %2."),
            name,
            std::generic_category().message(error));
}

std::string noTrashSentence(const std::string& name, int error)
{
    switch (error) {
    case EROFS:
    case ENOSPC:
    case EDQUOT:
        return trashErrorSentence(name, error);
    default:
        return trashSentence(
            QT_TRANSLATE_NOOP(
                "TrashSentences",
                "'%1' was not moved to the trash, because its disk has no trash for you."),
            name);
    }
}

std::string pathOf(const FileDescriptor& opened)
{
    const std::string link = "/proc/self/fd/" + std::to_string(opened.number());
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink(link.c_str(), buffer.data(), buffer.size());
    const std::string path(buffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    // The path of what was removed goes on with a note, and may by chance be another one's.
    const StatusResult there = statusAt(AT_FDCWD, path.c_str());
    const StatusResult wanted = statusOf(opened.number());
    return there && wanted && there.status.identity == wanted.status.identity ? path : "";
}

} // namespace tessera
