// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/MainThread.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace tessera::test {

/// A main thread whose loop the test turns by hand, on the thread of the test.
class FakeMainThread final : public MainThread {
public:
    void perform(std::function<void()> work) override;
    void performAndWait(std::function<void()> work) override;

    /// Blocks until there is work to be done.
    void awaitWork();

    /// Whether those who had work done waited for it, in the order in which they came.
    std::vector<bool> waits();

    /// Runs work in its order, waiting for more, until `done` says so.
    void runUntil(const std::function<bool()>& done);

private:
    struct Job {
        std::function<void()> work;
        bool done = false;
    };

    std::shared_ptr<Job> add(std::function<void()> work, bool waits);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::shared_ptr<Job>> m_jobs;
    std::vector<bool> m_waits;
};

} // namespace tessera::test
