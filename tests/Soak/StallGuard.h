// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

namespace tessera::test {

/// Ends the process with its stack on record when the main thread gives no sign of life for too
/// long: who hangs cannot say so.
class StallGuard {
public:
    explicit StallGuard(std::chrono::seconds limit);
    StallGuard(const StallGuard&) = delete;
    StallGuard& operator=(const StallGuard&) = delete;
    ~StallGuard() = default;

    void signOfLife() { ++m_signs; }

private:
    void watch(const std::stop_token& stop);

    const std::chrono::seconds m_limit;
    std::atomic<unsigned> m_signs = 0;
    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::jthread m_thread;
};

} // namespace tessera::test
