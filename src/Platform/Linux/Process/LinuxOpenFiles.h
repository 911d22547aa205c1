// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"
#include "Desktop/OpenFiles.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace tessera {

class WantedFiles;

/// By /proc, on a thread of its own.
class LinuxOpenFiles final : public OpenFiles {
public:
    LinuxOpenFiles() = default;
    /// Tests pass a patience and a folder of their own.
    explicit LinuxOpenFiles(std::chrono::milliseconds patience, std::string proc = "/proc");

    [[nodiscard]] OpenFilesAnswer withoutNames(
        std::uint64_t device, const std::stop_token& stop) const override;
    [[nodiscard]] OpenFilesAnswer among(
        const std::vector<FileIdentity>& files, const std::stop_token& stop) const override;

private:
    OpenFilesAnswer search(
        const std::function<WantedFiles()>& wanted, const std::stop_token& stop) const;

    std::chrono::milliseconds m_patience = kOpenFilesPatience;
    std::string m_proc = "/proc";
    std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
};

} // namespace tessera
