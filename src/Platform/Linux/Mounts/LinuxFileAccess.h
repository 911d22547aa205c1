// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/FileAccess.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include <memory>

namespace tessera {

class LinuxFileAccess final : public FileAccess {
public:
    /// Waits for a file system for as long as it takes.
    LinuxFileAccess() = default;
    /// What does not answer in time has the error `timed_out`, and its path stays as it is.
    explicit LinuxFileAccess(std::shared_ptr<const FileSystemQuestions> questions);

    [[nodiscard]] std::error_code checkFolder(const std::string& path) const override;
    [[nodiscard]] std::error_code checkFolderWithoutLinks(const std::string& path) const override;
    [[nodiscard]] std::string absolutePath(const std::string& path) const override;
    [[nodiscard]] std::error_code writeFile(
        const std::string& path, std::string_view bytes) const override;

private:
    std::error_code answer(
        const std::string& path,
        LinkMode linkMode,
        std::error_code (*question)(const std::string&)) const;

    std::shared_ptr<const FileSystemQuestions> m_questions; ///< null when there is no hurry
};

} // namespace tessera
