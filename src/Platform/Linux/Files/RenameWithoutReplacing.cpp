// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/RenameWithoutReplacing.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/WriteAll.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace tessera {

namespace {

constexpr mode_t kPlaceholderFileMode = 0600;
constexpr mode_t kPlaceholderFolderMode = 0700;

/// After an answer that got lost, some file systems go on showing what they remember of a name,
/// inode number and length included. What an opened file holds comes from where it is kept.
constexpr std::string_view kPlaceholderText = "Something is being moved here: ";

struct Placeholder {
    FileIdentity identity;
    bool isDirectory = false;
    std::string text; ///< empty when the disk was too full for it
};

enum class ContentOwner : bool { Placeholders, Others };

bool isAt(const FolderEntry& place, const FileIdentity& identity)
{
    const StatusResult found = statusAt(place.folder.number(), place.name.c_str());
    return found && found.status.identity == identity;
}

bool isNothingAt(const FolderEntry& place)
{
    return statusAt(place.folder.number(), place.name.c_str()).error == ENOENT;
}

/// Whether the error is an answer of the file system's: nothing was moved. With any other, the
/// answer to what was done may have been lost.
bool isRefusal(int error)
{
    constexpr std::array kRefusals{
        EACCES,
        EPERM,
        EROFS,
        EXDEV,
        ENOSPC,
        EDQUOT,
        EBUSY,
        EINVAL,
        ENOSYS,
        EEXIST,
        EISDIR,
        ENOTDIR,
        ELOOP,
        ENAMETOOLONG,
        EMLINK,
        EOPNOTSUPP,
        ENOTEMPTY};
    return std::find(kRefusals.begin(), kRefusals.end(), error) != kRefusals.end();
}

int makeFolder(const FolderEntry& place, Placeholder& placeholder)
{
    if (::mkdirat(place.folder.number(), place.name.c_str(), kPlaceholderFolderMode) != 0) {
        return errno;
    }
    const StatusResult made = statusAt(place.folder.number(), place.name.c_str());
    placeholder.identity = made.status.identity;
    return made ? 0 : kMoveUncertain;
}

/// No other file begins like it: after a break a disk may show another's content only as far as it
/// remembers the placeholder to be long.
std::string newPlaceholderText()
{
    std::random_device random;
    return std::string(kPlaceholderText) + std::to_string(random()) + '-' + std::to_string(random())
        + '\n';
}

int makeFile(const FolderEntry& place, Placeholder& placeholder)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const FileDescriptor file(
        ::openat(place.folder.number(), place.name.c_str(), kFlags, kPlaceholderFileMode));
    if (!file.isOpen()) {
        return errno;
    }
    const StatusResult made = statusOf(file.number());
    placeholder.identity = made.status.identity;
    const std::string text = newPlaceholderText();
    placeholder.text = writeAll(file, text) ? std::string() : text;
    return made ? 0 : kMoveUncertain;
}

/// Whether the file that has the placeholder's name holds the placeholder's text; nothing when that
/// cannot be found out.
std::optional<ContentOwner> contentAt(const FolderEntry& place, const std::string& placeholderText)
{
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC;
    const FileDescriptor file(::openat(place.folder.number(), place.name.c_str(), kFlags));
    if (!file.isOpen()) {
        // The placeholder is its maker's to read, and no link.
        const bool isOther = errno == EACCES || errno == EPERM || errno == ELOOP;
        return isOther ? std::optional(ContentOwner::Others) : std::nullopt;
    }
    std::string bytes(placeholderText.size() + 1, '\0');
    const ssize_t count = ::pread(file.number(), bytes.data(), bytes.size(), 0);
    if (count < 0) {
        return std::nullopt;
    }
    const std::string_view text(bytes.data(), static_cast<std::size_t>(count));
    return text == placeholderText ? ContentOwner::Placeholders : ContentOwner::Others;
}

/// What a folder that was to be moved shows in its old place.
enum class FolderState : std::uint8_t { Unknown, Gone, Full };

FolderState stateOf(const FolderEntry& folder)
{
    const FileDescriptor opened = openDirectoryAt(folder.folder.number(), folder.name.c_str());
    if (!opened.isOpen()) {
        return errno == ENOENT ? FolderState::Gone : FolderState::Unknown;
    }
    alignas(dirent64) std::array<char, 4096> entries{};
    std::size_t names = 0;
    for (ssize_t bytes = 1; bytes > 0;) {
        bytes = ::getdents64(opened.number(), entries.data(), entries.size());
        if (bytes < 0) {
            return errno == ENOENT ? FolderState::Gone : FolderState::Unknown;
        }
        for (ssize_t offset = 0; offset < bytes; ++names) {
            offset += reinterpret_cast<const dirent64*>(entries.data() + offset)->d_reclen;
        }
        constexpr std::size_t kDots = 2;
        if (names > kDots) {
            return FolderState::Full;
        }
    }
    return FolderState::Unknown;
}

/// After an error that was no refusal: whether a folder's placeholder was still there and is gone
/// now; nothing when nobody can tell. It is empty, and a removal takes nothing that holds
/// something.
std::optional<bool> takeFolderAway(int error, const FolderEntry& from, const FolderEntry& to)
{
    switch (stateOf(from)) {
    case FolderState::Gone:
        return error == ENOENT ? std::nullopt : std::optional(false);
    case FolderState::Full: {
        const int result = ::unlinkat(to.folder.number(), to.name.c_str(), AT_REMOVEDIR);
        const int why = result == 0 ? 0 : errno;
        return why == 0 || isRefusal(why) ? std::optional(why == 0) : std::nullopt;
    }
    case FolderState::Unknown:
        break;
    }
    return std::nullopt;
}

/// The same for a file's placeholder, which holds its text.
std::optional<bool> takeFileAway(const FolderEntry& to, const std::string& placeholderText)
{
    const std::optional<ContentOwner> content = contentAt(to, placeholderText);
    if (content != ContentOwner::Placeholders) {
        return content ? std::optional(false) : std::nullopt;
    }
    const int result = ::unlinkat(to.folder.number(), to.name.c_str(), 0);
    return result == 0 ? std::optional(true) : std::nullopt;
}

/// What has become of the item after the error.
int settled(
    int error,
    const FolderEntry& from,
    const FolderEntry& to,
    const FileIdentity& item,
    const Placeholder* placeholder)
{
    // An item with several names may have had the new one before.
    if (isAt(to, item) && !isAt(from, item)) {
        return 0;
    }
    if (isRefusal(error)) {
        if (placeholder != nullptr && isAt(to, placeholder->identity)) {
            ::unlinkat(
                to.folder.number(), to.name.c_str(), placeholder->isDirectory ? AT_REMOVEDIR : 0);
        }
        return error;
    }
    if (placeholder == nullptr) {
        return isAt(from, item) || isNothingAt(to) ? error : kMoveUncertain;
    }
    const std::optional<bool> wasThere = placeholder->isDirectory ? takeFolderAway(error, from, to)
        : !placeholder->text.empty() ? takeFileAway(to, placeholder->text)
                                     : std::nullopt;
    if (!wasThere) {
        return kMoveUncertain;
    }
    return *wasThere ? error : 0;
}

} // namespace

int renameWithoutReplacing(const FolderEntry& from, const FolderEntry& to)
{
    const StatusResult item = statusAt(from.folder.number(), from.name.c_str());
    if (!item) {
        return item.error;
    }
    const int result = ::renameat2(
        from.folder.number(),
        from.name.c_str(),
        to.folder.number(),
        to.name.c_str(),
        RENAME_NOREPLACE);
    const int error = result == 0 ? 0 : errno;
    // What the file system or the kernel does not know is one of these two.
    if (error == EINVAL || error == ENOSYS) {
        return renameOntoPlaceholder(from, to);
    }
    return error == 0 ? 0 : settled(error, from, to, item.status.identity, nullptr);
}

int renameOntoPlaceholder(const FolderEntry& from, const FolderEntry& to)
{
    // Not a second link and the removal of the first: what another program puts under the old name
    // in between would be removed.
    const StatusResult item = statusAt(from.folder.number(), from.name.c_str());
    if (!item) {
        return item.error;
    }
    Placeholder placeholder;
    placeholder.isDirectory = item.status.isDirectory;
    const int notMade
        = placeholder.isDirectory ? makeFolder(to, placeholder) : makeFile(to, placeholder);
    if (notMade != 0) {
        return notMade;
    }
    const int result
        = ::renameat(from.folder.number(), from.name.c_str(), to.folder.number(), to.name.c_str());
    const int error = result == 0 ? 0 : errno;
    return error == 0 ? 0 : settled(error, from, to, item.status.identity, &placeholder);
}

} // namespace tessera
