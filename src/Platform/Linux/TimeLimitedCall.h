// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

namespace tessera {

/// How long a question about one path may take before the file system counts as dead: a network
/// mount whose server is gone would block the caller for minutes.
inline constexpr std::chrono::milliseconds kFileSystemTimeLimit{2000};

/// Makes the call on a thread of its own; nothing when it does not return in time. What the call
/// uses must be its own, because a call that is stuck in the kernel cannot be taken back and may
/// end much later.
template <typename Value>
std::optional<Value> callWithin(
    std::chrono::milliseconds timeLimit, std::function<std::optional<Value>()> call)
{
    auto answer = std::make_shared<std::promise<std::optional<Value>>>();
    std::future<std::optional<Value>> pending = answer->get_future();
    std::thread([call = std::move(call), answer] { answer->set_value(call()); }).detach();
    if (pending.wait_for(timeLimit) != std::future_status::ready) {
        return std::nullopt;
    }
    return pending.get();
}

} // namespace tessera
