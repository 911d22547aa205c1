// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Linux/Mounts/MountTable.h"
#include "Scanning/ResourceValues.h"

#include <functional>
#include <memory>

namespace tessera {

/// statx(2). What does not answer in time counts as not readable.
class LinuxResourceValues final : public ResourceValues {
public:
    /// What the system says of a path. Tests pass their own.
    using Query = std::function<StatusResult(const std::string& path, LinkMode linkMode)>;

    /// What is mounted where, now.
    using Mounts = std::function<MountTable()>;

    explicit LinuxResourceValues(std::shared_ptr<const FileSystemQuestions> questions);
    LinuxResourceValues(
        std::shared_ptr<const FileSystemQuestions> questions, Query query, Mounts mounts);

    /// A symbolic link is followed, as by the walk that starts there.
    [[nodiscard]] bool isVolume(const std::string& path) const override;

    /// Likewise; by the table of mounts where the file system does not answer.
    [[nodiscard]] bool isMountPoint(const std::string& path) const override;

    [[nodiscard]] bool isSameDirectory(
        const std::string& path, const std::string& other) const override;

    [[nodiscard]] bool isDirectory(const std::string& path) const override;

    [[nodiscard]] std::optional<std::uint64_t> allocatedSize(
        const std::string& path) const override;

    /// A symbolic link is not followed.
    [[nodiscard]] std::optional<std::int64_t> contentModificationDate(
        const std::string& path) const override;

private:
    std::optional<FileStatus> status(const std::string& path, LinkMode linkMode) const;

    std::shared_ptr<const FileSystemQuestions> m_questions;
    Query m_query;
    Mounts m_mounts;
};

} // namespace tessera
