// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tessera::test {

/// Makes a program wait in the middle of a scan for as long as a test likes, as a slow disk would:
/// reading the entries of a folder that is held does not return before the folder is let go. The
/// kernel asks us about each such call, see seccomp_unotify(2). To outlive the program.
class FolderGate {
public:
    /// Throws std::system_error when the system has no such thing.
    FolderGate();
    FolderGate(const FolderGate&) = delete;
    FolderGate& operator=(const FolderGate&) = delete;
    ~FolderGate();

    /// To be done in the new process, before the program. A failure ends that process.
    void placeBefore() const;
    /// To be done in the test, once the process is there.
    void watch();

    void hold(const std::string& folder);
    /// Whether the program is waiting to read that folder.
    bool isReached() const;
    void letGo();

private:
    void answerCalls(const std::stop_token& stop);
    void decide(std::uint64_t call, const std::string& folder);
    void permit(std::uint64_t call) const;

    int m_ours = -1; ///< sockets over which the new process hands us the kernel's questions
    int m_theirs = -1;
    int m_questions = -1;
    mutable std::mutex m_mutex;
    std::string m_held;
    std::vector<std::uint64_t> m_waiting;
    std::jthread m_watcher; ///< last, so that it ends before the rest
};

} // namespace tessera::test
