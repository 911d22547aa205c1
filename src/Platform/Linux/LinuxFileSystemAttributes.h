// SPDX-License-Identifier: MIT
#pragma once

#include "Model/FileSystemAttributes.h"

#include <chrono>
#include <functional>

namespace tessera {

/// statvfs(3) with a time limit: a dead network mount would block the caller for minutes.
class LinuxFileSystemAttributes final : public FileSystemAttributes {
public:
    /// What is asked of the system for a path: 0 and the sizes, or an errno. Tests pass their own.
    using Query = std::function<int(const std::string& path, FileSystemSizes& sizes)>;

    LinuxFileSystemAttributes();
    LinuxFileSystemAttributes(Query query, std::chrono::milliseconds timeLimit);

    [[nodiscard]] std::optional<FileSystemSizes> attributesOfFileSystem(
        const std::string& path) const override;

private:
    Query m_query;
    std::chrono::milliseconds m_timeLimit;
};

} // namespace tessera
