// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/DeadMountLimits.h"
#include "DeadMounts/QuestionThreads.h"
#include "Desktop/ItemStates.h"
#include "Platform/Linux/Files/FileStatus.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace tessera {

/// `birth` is as birthTimeOf() tells it.
[[nodiscard]] ItemState itemStateOf(const FileStatus& status, std::optional<std::uint64_t> birth);

/// By statx(2), on a thread of its own.
class LinuxItemStates final : public ItemStates {
public:
    explicit LinuxItemStates(std::chrono::milliseconds patience = kItemStatesPatience);

    [[nodiscard]] std::vector<ItemAnswer> statesOf(
        const std::vector<std::string>& paths, const std::stop_token& stop) const override;

private:
    std::chrono::milliseconds m_patience;
    std::shared_ptr<QuestionThreads> m_threads = QuestionThreads::make();
};

} // namespace tessera
