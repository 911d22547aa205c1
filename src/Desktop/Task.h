// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessera {

/// One child process. Main thread only.
class Task {
public:
    /// Gets the exit status: 0 for success alone. A process that could not be started or that a
    /// signal ended has another.
    using TerminationHandler = std::function<void(int status)>;

    Task() = default;
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;

    /// As stop().
    virtual ~Task() = default;

    /// Starts the program, once for each task. `program` is a path; all texts are bytes. Its
    /// standard input leads nowhere, its output is kept, its errors go where ours go. It gets a
    /// request to end when this program dies. The handler is called later, once, and may destroy
    /// the task.
    virtual void start(
        const std::string& program,
        const std::vector<std::string>& arguments,
        TerminationHandler onTerminated)
        = 0;

    /// Asks the process to end, which the handler will tell. Nothing once it has ended.
    virtual void terminate() = 0;

    /// Ends the process if it still runs, and waits for that as long as the system lets one hope.
    /// The handler is not called any more.
    virtual void stop() = 0;

    /// What the process has written to its standard output so far; of more than a few lines the
    /// beginning. Empty where the system could not keep it.
    [[nodiscard]] virtual std::string output() const = 0;
};

} // namespace tessera
