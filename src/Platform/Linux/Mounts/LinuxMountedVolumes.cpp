// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxMountedVolumes.h"

#include "Platform/Linux/Mounts/DiskMounts.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

std::string contentOf(int file)
{
    constexpr std::size_t kPiece = 65536;
    std::string text;
    std::array<char, kPiece> piece{};
    ::lseek(file, 0, SEEK_SET);
    while (true) {
        const ssize_t length = ::read(file, piece.data(), piece.size());
        if (length > 0) {
            text.append(piece.data(), static_cast<std::size_t>(length));
        } else if (length == 0 || errno != EINTR) {
            return text;
        }
    }
}

} // namespace

LinuxMountedVolumes::LinuxMountedVolumes(
    std::shared_ptr<const FileSystemQuestions> questions,
    const std::string& mountInfo,
    std::string fstab)
    : m_questions(std::move(questions))
    , m_mountInfo(::open(mountInfo.c_str(), O_RDONLY | O_CLOEXEC))
    , m_fstab(std::move(fstab))
{
}

std::vector<MountedVolume> LinuxMountedVolumes::mountedVolumes() const
{
    std::ifstream file(m_fstab, std::ios::binary);
    const std::string fstab{std::istreambuf_iterator<char>(file), {}};
    return diskMounts(table(), pointsHiddenInFstab(fstab), [this](const std::string& point) {
        return isFile(point);
    });
}

/// What does not answer stays listed.
bool LinuxMountedVolumes::isFile(const std::string& point) const
{
    return m_questions
        ->ask<bool>(
            point,
            LinkMode::Keep,
            [point]() -> std::optional<bool> {
                const StatusResult found = statusAt(AT_FDCWD, point.c_str());
                return found && !found.status.isDirectory;
            })
        .value_or(false);
}

std::optional<MountedVolume> LinuxMountedVolumes::volumeAt(const std::string& path) const
{
    const std::optional<Mount> mount = table().mountOf(path, {});
    return mount && mount->point == path ? std::optional(volumeOf(*mount)) : std::nullopt;
}

const MountTable& LinuxMountedVolumes::table() const
{
    if (!m_table || hasChanged()) {
        m_table.emplace(m_mountInfo.isOpen() ? contentOf(m_mountInfo.number()) : std::string());
    }
    return *m_table;
}

bool LinuxMountedVolumes::hasChanged() const
{
    // The kernel reports a change of the table as an exceptional condition of the open file, once.
    pollfd watched{m_mountInfo.number(), POLLPRI, 0};
    return ::poll(&watched, 1, 0) > 0 && (watched.revents & (POLLPRI | POLLERR)) != 0;
}

} // namespace tessera
