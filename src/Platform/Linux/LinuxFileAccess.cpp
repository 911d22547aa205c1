// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxFileAccess.h"

#include "Platform/Linux/FileDescriptor.h"
#include "Platform/Linux/writeAll.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

namespace tessera {

namespace {

constexpr mode_t kNewFileMode = 0666; // what the user's umask leaves of it

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

/// A file beside `path` that nobody else has, under a name that mkostemp chooses.
FileDescriptor makeTemporary(const std::string& path, std::string& temporaryPath)
{
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
    // The name is not derived from the file's own, which may be as long as names can be.
    temporaryPath = folder + ".tessera-XXXXXX";
    return FileDescriptor(::mkostemp(temporaryPath.data(), O_CLOEXEC));
}

mode_t currentUmask()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}

std::error_code tryToOpenFolder(const std::string& path)
{
    const FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.isOpen() ? std::error_code{} : lastError();
}

std::optional<std::string> resolvedPath(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(
        ::realpath(path.c_str(), nullptr), &std::free);
    return resolved != nullptr ? std::optional<std::string>(resolved.get()) : std::nullopt;
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
        ? resolvedPath(path)
        : m_questions->ask<std::string>(
            path, LinkMode::Follow, [path] { return resolvedPath(path); });
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
    std::string temporaryPath;
    const FileDescriptor file = makeTemporary(path, temporaryPath);
    if (!file.isOpen()) {
        return lastError();
    }
    std::error_code error = writeAll(file, bytes);
    if (!error && ::fchmod(file.number(), kNewFileMode & ~currentUmask()) != 0) {
        error = lastError();
    }
    if (!error && ::rename(temporaryPath.c_str(), path.c_str()) != 0) {
        error = lastError();
    }
    if (error) {
        ::unlink(temporaryPath.c_str());
    }
    return error;
}

} // namespace tessera
