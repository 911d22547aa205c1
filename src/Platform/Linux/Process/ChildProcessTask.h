// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Task.h"
#include "Platform/Linux/Files/FileDescriptor.h"

#include <sys/types.h>

#include <memory>

class QSocketNotifier;
class QTimer;

namespace tessera {

/// A child process whose end the event loop reports. (QProcess takes its arguments as text, which
/// file names need not be.)
class ChildProcessTask final : public Task {
public:
    ChildProcessTask();
    ~ChildProcessTask() override;

    void start(
        const std::string& program,
        const std::vector<std::string>& arguments,
        TerminationHandler onTerminated) override;
    void terminate() override;
    void stop() override { end(); }
    [[nodiscard]] std::string output() const override;

private:
    void watch();
    void reportLater(int status);
    void ended();
    void end();
    bool waitForEnd(int milliseconds) const;
    /// Whether there is a process whose end nobody has taken note of.
    bool isRunning() const { return m_process > 0; }

    TerminationHandler m_onTerminated;
    pid_t m_process = 0;
    FileDescriptor m_handle; ///< becomes readable when the process ends
    FileDescriptor m_output; ///< a file without a name
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<QTimer> m_pendingReport;
};

} // namespace tessera
