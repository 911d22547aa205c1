// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {

/// What a program is started with. Arguments are bytes.
struct ChildProcessSetup {
    std::string program; ///< looked for in PATH unless it has a slash
    std::vector<std::string> arguments;
    std::vector<std::string> environment; ///< "NAME=value", besides what the test has
    std::string outputPath; ///< takes the standard output
    std::string errorPath; ///< takes the standard error
    std::function<void()> beforeStart = nullptr; ///< done in the new process, before the program
};

/// A program that runs beside the test and does not outlive it: files instead of pipes take what
/// it writes, so that nobody has to read while it runs. No process can be made: std::system_error.
class ChildProcess {
public:
    explicit ChildProcess(const ChildProcessSetup& setup);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    pid_t id() const { return m_id; }

    /// The status it exited with, or -1 when a signal ended it; nothing while it runs.
    std::optional<int> exitStatus();
    int waitForExit();

    /// Sends it a signal, unless its end is known already.
    void signal(int number) const;

private:
    bool reap(int options);

    pid_t m_id;
    std::optional<int> m_exitStatus;
};

} // namespace tessera::test
