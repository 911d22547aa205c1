// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Task.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera::test {

/// What was done with one fake child process, and a way to end it.
struct FakeTaskRecord {
    std::string program;
    std::vector<std::string> arguments;
    int terminateCount = 0;
    bool isStopped = false;
    bool isDestroyed = false;
    std::string output;
    std::string outputWhenStopped; ///< what it still writes when it is made to end
    Task::TerminationHandler onTerminated;
};

/// A child process that does nothing until the test ends it.
class FakeTask final : public Task {
public:
    /// A task that writes into `record`, which outlives it.
    static std::unique_ptr<Task> make(FakeTaskRecord& record)
    {
        return std::make_unique<FakeTask>(record);
    }

    explicit FakeTask(FakeTaskRecord& record)
        : m_record(record)
    {
    }
    FakeTask(const FakeTask&) = delete;
    FakeTask& operator=(const FakeTask&) = delete;
    ~FakeTask() override { m_record.isDestroyed = true; }

    void start(
        const std::string& program,
        const std::vector<std::string>& arguments,
        TerminationHandler onTerminated) override
    {
        m_record.program = program;
        m_record.arguments = arguments;
        m_record.onTerminated = std::move(onTerminated);
    }

    void terminate() override { ++m_record.terminateCount; }

    void stop() override
    {
        m_record.isStopped = true;
        m_record.output += m_record.outputWhenStopped;
    }

    [[nodiscard]] std::string output() const override { return m_record.output; }

private:
    FakeTaskRecord& m_record;
};

} // namespace tessera::test
