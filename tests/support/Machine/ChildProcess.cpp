// SPDX-License-Identifier: MIT
#include "support/Machine/ChildProcess.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

namespace tessera::test {

namespace {

constexpr int kCannotStart = 127;

void redirect(int descriptor, const std::string& path, int flags)
{
    constexpr mode_t kPrivate = 0600;
    const int file = ::open(path.c_str(), flags, kPrivate);
    if (file < 0 || ::dup2(file, descriptor) < 0) {
        ::_exit(kCannotStart);
    }
}

[[noreturn]] void become(const ChildProcessSetup& setup, char* const* words)
{
    // A test that crashes or runs out of time leaves nothing behind.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    redirect(STDIN_FILENO, "/dev/null", O_RDONLY);
    redirect(STDOUT_FILENO, setup.outputPath, O_WRONLY | O_CREAT);
    redirect(STDERR_FILENO, setup.errorPath, O_WRONLY | O_CREAT);
    for (const std::string& variable : setup.environment) {
        ::putenv(const_cast<char*>(variable.c_str())); // NOLINT(concurrency-mt-unsafe)
    }
    if (setup.beforeStart) {
        setup.beforeStart();
    }
    ::execvp(setup.program.c_str(), words);
    ::_exit(kCannotStart);
}

} // namespace

ChildProcess::ChildProcess(const ChildProcessSetup& setup)
{
    std::vector<char*> words{const_cast<char*>(setup.program.c_str())};
    for (const std::string& argument : setup.arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    m_id = ::fork();
    if (m_id < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    if (m_id == 0) {
        become(setup, words.data());
    }
}

ChildProcess::~ChildProcess()
{
    if (!exitStatus()) {
        ::kill(m_id, SIGKILL);
        waitForExit();
    }
}

std::optional<int> ChildProcess::exitStatus()
{
    reap(WNOHANG);
    return m_exitStatus;
}

int ChildProcess::waitForExit()
{
    while (!reap(0)) { }
    return *m_exitStatus;
}

void ChildProcess::signal(int number) const
{
    if (!m_exitStatus) {
        ::kill(m_id, number);
    }
}

bool ChildProcess::reap(int options)
{
    if (!m_exitStatus) {
        int status = 0;
        const pid_t ended = ::waitpid(m_id, &status, options);
        if (ended == m_id) {
            m_exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        } else if (ended < 0 && errno != EINTR) {
            m_exitStatus = -1; // there never was one
        }
    }
    return m_exitStatus.has_value();
}

} // namespace tessera::test
