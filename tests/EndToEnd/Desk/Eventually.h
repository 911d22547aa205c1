// SPDX-License-Identifier: MIT
#pragma once

#include <poll.h>

#include <chrono>

namespace tessera::test {

/// Far longer than anything takes on a busy machine with sanitizers; only a failure waits for it.
inline constexpr std::chrono::seconds kPatience{30};

/// Whether the condition comes true. What another process shows can only be found by looking again
/// and again.
template <typename Condition>
bool eventually(Condition condition)
{
    constexpr int kBetweenLooksMs = 10;
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        ::poll(nullptr, 0, kBetweenLooksMs);
    }
    return true;
}

} // namespace tessera::test
