// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxResourceValues.h"

#include <fcntl.h>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

StatusResult queryStatus(const std::string& path, LinkMode linkMode)
{
    return statusAt(AT_FDCWD, path.c_str(), linkMode);
}

/// Whether something is mounted at the directory, told from the directory above it where the kernel
/// does not say so. There a bind mount of the same file system goes unnoticed.
bool isMountRoot(const FileStatus& directory, const FileStatus& above)
{
    if (directory.isMountRoot) {
        return *directory.isMountRoot;
    }
    const bool isRootOfAll = directory.identity == above.identity;
    return isRootOfAll || directory.identity.device != above.identity.device;
}

/// The status of the directory where something is mounted; nothing of any other path.
std::optional<FileStatus> mountedDirectory(
    const LinuxResourceValues::Query& query, const std::string& path)
{
    const StatusResult found = query(path, LinkMode::Follow);
    const StatusResult above = query(path + "/..", LinkMode::Follow);
    const bool isMounted
        = found && above && found.status.isDirectory && isMountRoot(found.status, above.status);
    return isMounted ? std::optional(found.status) : std::nullopt;
}

/// What is mounted there shows only a part of its file system. What the table does not tell of, as
/// from inside another root directory, counts as whole.
bool showsPart(const FileStatus& mounted, const std::string& path, const MountTable& mounts)
{
    const std::optional<Mount> mount
        = mounted.mountId ? mounts.withId(*mounted.mountId) : mounts.mountOf(path, {});
    return mount && mount->isPart();
}

bool isListedPoint(const MountTable& table, const std::string& path)
{
    return std::ranges::find(table.mounts(), path, &Mount::point) != table.mounts().end();
}

} // namespace

LinuxResourceValues::LinuxResourceValues(std::shared_ptr<const FileSystemQuestions> questions)
    : LinuxResourceValues(std::move(questions), queryStatus, [] {
        return MountTable::ofThisProcess().value_or(MountTable({}));
    })
{
}

LinuxResourceValues::LinuxResourceValues(
    std::shared_ptr<const FileSystemQuestions> questions, Query query, Mounts mounts)
    : m_questions(std::move(questions))
    , m_query(std::move(query))
    , m_mounts(std::move(mounts))
{
}

bool LinuxResourceValues::isVolume(const std::string& path) const
{
    return m_questions
        ->ask<bool>(
            path,
            LinkMode::Follow,
            [query = m_query, mounts = m_mounts, path] {
                const std::optional<FileStatus> mounted = mountedDirectory(query, path);
                return std::optional(mounted && !showsPart(*mounted, path, mounts()));
            })
        .value_or(false);
}

bool LinuxResourceValues::isMountPoint(const std::string& path) const
{
    const auto answer = m_questions->ask<bool>(path, LinkMode::Follow, [query = m_query, path] {
        return std::optional(mountedDirectory(query, path).has_value());
    });
    return answer ? *answer : isListedPoint(m_mounts(), path);
}

bool LinuxResourceValues::isSameDirectory(const std::string& path, const std::string& other) const
{
    return m_questions
        ->ask<bool>(
            path,
            LinkMode::Follow,
            [query = m_query, path, other] {
                const StatusResult found = query(path, LinkMode::Follow);
                const StatusResult foundOther = query(other, LinkMode::Follow);
                return std::optional(
                    found && foundOther && found.status.isDirectory
                    && found.status.identity == foundOther.status.identity);
            })
        .value_or(false);
}

bool LinuxResourceValues::isDirectory(const std::string& path) const
{
    const std::optional<FileStatus> found = status(path, LinkMode::Follow);
    return found && found->isDirectory;
}

std::optional<std::uint64_t> LinuxResourceValues::allocatedSize(const std::string& path) const
{
    const std::optional<FileStatus> found = status(path, LinkMode::Keep);
    return found ? std::optional(found->allocatedBytes) : std::nullopt;
}

std::optional<std::int64_t> LinuxResourceValues::contentModificationDate(
    const std::string& path) const
{
    const std::optional<FileStatus> found = status(path, LinkMode::Keep);
    return found ? std::optional(found->modified) : std::nullopt;
}

std::optional<FileStatus> LinuxResourceValues::status(
    const std::string& path, LinkMode linkMode) const
{
    return m_questions->ask<FileStatus>(
        path, linkMode, [query = m_query, path, linkMode]() -> std::optional<FileStatus> {
            const StatusResult found = query(path, linkMode);
            return found ? std::optional(found.status) : std::nullopt;
        });
}

} // namespace tessera
