// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashInfo.h"

#include "Base/FileNames.h"
#include "Base/Url.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/WriteAll.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

namespace tessera {

namespace {

/// A longer one is no extension but the rest of a name that has a dot in it.
constexpr std::size_t kMaxExtensionBytes = 16;

/// Where the extension begins, its dot included; the end when there is none.
std::size_t extensionStart(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    const bool isExtension = dot != std::string_view::npos && dot != 0 && name.size() - dot > 1
        && name.size() - dot <= kMaxExtensionBytes;
    return isExtension ? dot : name.size();
}

std::string localTime(std::time_t time)
{
    std::tm parts{};
    ::localtime_r(&time, &parts);
    std::array<char, sizeof("YYYYYYYYYYY-MM-DDThh:mm:ss")> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &parts);
    return {text.data(), length};
}

std::string trashInfoName(const std::string& name)
{
    return name + std::string(kTrashInfoSuffix);
}

/// More of a file than any info file has; nothing when it cannot be read.
std::optional<std::string> beginningOf(const FileDescriptor& file)
{
    std::string bytes(65'536, '\0');
    ssize_t count = -1;
    do {
        count = ::pread(file.number(), bytes.data(), bytes.size(), 0);
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

/// An info file that is open, and what it says.
struct OpenInfo {
    InfoSays says = InfoSays::Unknown;
    FileDescriptor file;
};

OpenInfo openInfo(
    const FileDescriptor& infoFolder,
    const std::string& infoName,
    std::string_view originalPath,
    const std::string& topDirectory)
{
    OpenInfo info;
    // To open a device may be to use it.
    const StatusResult before = statusAt(infoFolder.number(), infoName.c_str());
    if (before.error == ENOENT || (before && !before.status.isRegular)) {
        info.says = InfoSays::Nothing;
        return info;
    }
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC;
    info.file = FileDescriptor(::openat(infoFolder.number(), infoName.c_str(), kFlags));
    const std::optional<std::string> text
        = before && info.file.isOpen() ? beginningOf(info.file) : std::nullopt;
    if (text) {
        const std::string path = originalPathIn(*text, topDirectory);
        info.says = path.empty()   ? InfoSays::Nothing
            : path == originalPath ? InfoSays::ThisPath
                                   : InfoSays::AnotherPath;
    }
    return info;
}

} // namespace

std::string trashInfoText(std::string_view originalPath, std::time_t deletionTime)
{
    return "[Trash Info]\nPath=" + percentEncoded(originalPath)
        + "\nDeletionDate=" + localTime(deletionTime) + '\n';
}

int makeTrashInfo(
    const FileDescriptor& infoFolder, const std::string& name, std::string_view originalPath)
{
    constexpr mode_t kPrivateMode = 0600;
    const std::string infoName = trashInfoName(name);
    const std::string text = trashInfoText(originalPath, std::time(nullptr));
    const FileDescriptor file(::openat(
        infoFolder.number(),
        infoName.c_str(),
        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
        kPrivateMode));
    if (!file.isOpen()) {
        return errno;
    }
    const std::error_code error = writeAll(file, text);
    if (error) {
        removeTrashInfo(infoFolder, name);
    }
    return error.value();
}

void removeTrashInfo(const FileDescriptor& infoFolder, const std::string& name)
{
    ::unlinkat(infoFolder.number(), trashInfoName(name).c_str(), 0);
}

std::string originalPathIn(std::string_view text, const std::string& topDirectory)
{
    constexpr std::string_view kKey = "\nPath=";
    const std::size_t found = text.find(kKey);
    if (!text.starts_with("[Trash Info]") || found == std::string_view::npos) {
        return {};
    }
    const std::string_view value = text.substr(found + kKey.size());
    std::string path = percentDecoded(value.substr(0, value.find('\n'))).value_or("");
    if (path.empty() || path.starts_with('/')) {
        return path;
    }
    return (topDirectory == "/" ? "" : topDirectory) + '/' + path;
}

InfoSays infoSays(
    const FileDescriptor& infoFolder,
    const std::string& name,
    std::string_view originalPath,
    const std::string& topDirectory)
{
    return openInfo(infoFolder, trashInfoName(name), originalPath, topDirectory).says;
}

void removeTrashInfoOf(
    const FileDescriptor& infoFolder,
    const std::string& name,
    std::string_view originalPath,
    const std::string& topDirectory)
{
    const std::string infoName = trashInfoName(name);
    const OpenInfo info = openInfo(infoFolder, infoName, originalPath, topDirectory);
    if (info.says != InfoSays::ThisPath) {
        return;
    }
    const StatusResult opened = statusOf(info.file.number());
    const StatusResult now = statusAt(infoFolder.number(), infoName.c_str());
    if (opened && now && opened.status.identity == now.status.identity) {
        removeTrashInfo(infoFolder, name);
    }
}

std::string numberedName(std::string_view name, unsigned number, std::size_t maxBytes)
{
    const std::size_t dot = extensionStart(name);
    const std::string_view extension = name.substr(dot);
    const std::string mark = number < 2 ? std::string() : ' ' + std::to_string(number);
    const std::size_t added = mark.size() + extension.size();
    const std::size_t room = maxBytes > added ? maxBytes - added : 1;
    return std::string(beginningOfName(name.substr(0, dot), room)).append(mark).append(extension);
}

std::string trashName(std::string_view name, unsigned number, std::size_t maxBytes)
{
    const std::size_t room = std::max(maxBytes, kTrashInfoSuffix.size()) - kTrashInfoSuffix.size();
    return numberedName(name, number, room);
}

} // namespace tessera
