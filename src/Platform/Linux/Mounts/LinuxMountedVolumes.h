// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/MountedVolumes.h"
#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Linux/Mounts/MountTable.h"

#include <memory>
#include <string>

namespace tessera {

/// The kernel's table of mounts, read again when the kernel says that it has changed.
class LinuxMountedVolumes final : public MountedVolumes {
public:
    /// Tests pass files of their own.
    explicit LinuxMountedVolumes(
        std::shared_ptr<const FileSystemQuestions> questions,
        const std::string& mountInfo = "/proc/self/mountinfo",
        std::string fstab = "/etc/fstab");

    [[nodiscard]] std::vector<MountedVolume> mountedVolumes() const override;
    [[nodiscard]] std::optional<MountedVolume> volumeAt(const std::string& path) const override;

private:
    const MountTable& table() const;
    bool hasChanged() const;

    bool isFile(const std::string& point) const;

    std::shared_ptr<const FileSystemQuestions> m_questions;
    FileDescriptor m_mountInfo;
    std::string m_fstab;
    mutable std::optional<MountTable> m_table;
};

} // namespace tessera
