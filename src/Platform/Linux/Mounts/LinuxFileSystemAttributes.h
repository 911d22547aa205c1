// SPDX-License-Identifier: MIT
#pragma once

#include "Model/FileSystemAttributes.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include <functional>
#include <memory>

struct statvfs;

namespace tessera {

/// The sizes that statvfs(3) tells, without the file system's type and device.
[[nodiscard]] FileSystemSizes sizesOf(const struct statvfs& values);

/// statvfs(3), and the table of mounts for the type. What does not answer in time has no sizes.
class LinuxFileSystemAttributes final : public FileSystemAttributes {
public:
    /// What is asked of the system for a path: 0 and the sizes, or an errno. Tests pass their own.
    using Query = std::function<int(const std::string& path, FileSystemSizes& sizes)>;

    explicit LinuxFileSystemAttributes(std::shared_ptr<const FileSystemQuestions> questions);
    LinuxFileSystemAttributes(std::shared_ptr<const FileSystemQuestions> questions, Query query);

    [[nodiscard]] std::optional<FileSystemSizes> attributesOfFileSystem(
        const std::string& path) const override;

private:
    std::shared_ptr<const FileSystemQuestions> m_questions;
    Query m_query;
};

} // namespace tessera
