// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxFileAccess.h"

#include "Platform/Linux/FileDescriptor.h"
#include "Platform/Linux/realPath.h"
#include "Platform/Linux/writeWholeFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

namespace tessera {

namespace {

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

std::error_code tryToOpenFolder(const std::string& path)
{
    const FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.isOpen() ? std::error_code{} : lastError();
}

} // namespace

LinuxFileAccess::LinuxFileAccess(std::shared_ptr<const FileSystemQuestions> questions)
    : m_questions(std::move(questions))
{
}

std::error_code LinuxFileAccess::checkFolder(const std::string& path) const
{
    if (m_questions == nullptr) {
        return tryToOpenFolder(path);
    }
    return m_questions
        ->ask<std::error_code>(
            path, LinkMode::Follow, [path] { return std::optional(tryToOpenFolder(path)); })
        .value_or(std::make_error_code(std::errc::timed_out));
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
