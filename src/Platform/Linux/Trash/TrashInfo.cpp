// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashInfo.h"

#include "Base/FileNames.h"
#include "Base/Url.h"
#include "Platform/Linux/Files/WriteAll.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

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

std::string trashName(std::string_view name, unsigned number, std::size_t maxBytes)
{
    const std::size_t dot = extensionStart(name);
    const std::string_view extension = name.substr(dot);
    const std::string mark = number < 2 ? std::string() : ' ' + std::to_string(number);
    const std::size_t added = mark.size() + extension.size() + kTrashInfoSuffix.size();
    const std::size_t room = maxBytes > added ? maxBytes - added : 1;
    return std::string(beginningOfName(name.substr(0, dot), room)).append(mark).append(extension);
}

} // namespace tessera
