// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxFileAccess.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/LastError.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Files/RealPath.h"
#include "Platform/Linux/Files/WriteWholeFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

namespace tessera {

namespace {

std::error_code tryToOpenFolder(const std::string& path)
{
    const FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.isOpen() ? std::error_code{} : lastError();
}

std::error_code tryToOpenFolderWithoutLinks(const std::string& path)
{
    const NamedPlace place = openFolderOfWithoutLinks(path);
    if (place.error != 0) {
        return {place.error, std::generic_category()};
    }
    constexpr int kFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const FileDescriptor folder(::openat(place.folder.number(), place.name.c_str(), kFlags));
    return folder.isOpen() ? std::error_code{} : lastError();
}

} // namespace

LinuxFileAccess::LinuxFileAccess(std::shared_ptr<const FileSystemQuestions> questions)
    : m_questions(std::move(questions))
{
}

std::error_code LinuxFileAccess::answer(
    const std::string& path,
    LinkMode linkMode,
    std::error_code (*question)(const std::string&)) const
{
    if (m_questions == nullptr) {
        return question(path);
    }
    return m_questions
        ->ask<std::error_code>(
            path, linkMode, [path, question] { return std::optional(question(path)); })
        .value_or(std::make_error_code(std::errc::timed_out));
}

std::error_code LinuxFileAccess::checkFolder(const std::string& path) const
{
    return answer(path, LinkMode::Follow, tryToOpenFolder);
}

std::error_code LinuxFileAccess::checkFolderWithoutLinks(const std::string& path) const
{
    return answer(path, LinkMode::Keep, tryToOpenFolderWithoutLinks);
}

std::string LinuxFileAccess::absolutePath(const std::string& path) const
{
    const std::optional<std::string> resolved = m_questions == nullptr
        ? realPath(path)
        : m_questions->ask<std::string>(path, LinkMode::Follow, [path] { return realPath(path); });
    if (resolved) {
        return *resolved;
    }
    if (!path.empty() && path.front() == '/') {
        return path;
    }
    const std::unique_ptr<char, decltype(&std::free)> current(::getcwd(nullptr, 0), &std::free);
    return current == nullptr ? path : std::string(current.get()) + '/' + path;
}

std::error_code LinuxFileAccess::writeFile(const std::string& path, std::string_view bytes) const
{
    return writeWholeFile(path, bytes);
}

} // namespace tessera
