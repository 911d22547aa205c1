// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/ChildProcessTask.h"

#include <QSocketNotifier>
#include <QTimer>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace tessera {

namespace {

constexpr int kCannotStart = 127; // as in the shell
constexpr int kSignalBase = 128; // as in the shell
constexpr int kMillisecondsToObey = 1000;
constexpr std::size_t kKeptOutputBytes = 4096;

std::vector<char*> argumentVector(std::string& program, std::vector<std::string>& arguments)
{
    std::vector<char*> vector{program.data()};
    for (std::string& argument : arguments) {
        vector.push_back(argument.data());
    }
    vector.push_back(nullptr);
    return vector;
}

/// Signals as a program expects them that was started by the user.
void resetSignals()
{
    for (const int signal : std::array{SIGTERM, SIGINT, SIGHUP, SIGPIPE, SIGCHLD}) {
        (void)std::signal(signal, SIG_DFL);
    }
    sigset_t none{};
    ::sigemptyset(&none);
    (void)::pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

/// Runs in the child, where after a fork of a program with threads only calls that are safe in
/// signal handlers may be made.
[[noreturn]] void becomeProgram(char* const* arguments, pid_t parent, int output)
{
    // No orphan goes on writing when this program crashes.
    (void)::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent) {
        ::_exit(kCannotStart);
    }
    resetSignals();
    const int nowhere = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ::dup2(nowhere, STDIN_FILENO);
    ::dup2(output >= 0 ? output : nowhere, STDOUT_FILENO);
    ::execv(*arguments, arguments);
    ::_exit(kCannotStart);
}

/// glibc 2.36 of Debian 12 has the function only in C.
FileDescriptor openProcess(pid_t process)
{
    return FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
}

/// Takes note of the end of a process, so that its number becomes free.
int reap(pid_t process)
{
    int status = 0;
    pid_t found = -1;
    do {
        found = ::waitpid(process, &status, 0);
    } while (found < 0 && errno == EINTR);
    if (found < 0) {
        return kCannotStart;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalBase + WTERMSIG(status);
}

} // namespace

ChildProcessTask::ChildProcessTask() = default;

ChildProcessTask::~ChildProcessTask()
{
    end();
}

void ChildProcessTask::end()
{
    m_onTerminated = {};
    m_notifier.reset();
    m_pendingReport.reset();
    if (!isRunning()) {
        return;
    }
    ::kill(m_process, SIGTERM);
    if (!waitForEnd(kMillisecondsToObey)) {
        ::kill(m_process, SIGKILL);
    }
    // A process that hangs in a dead file system ends whenever that answers.
    if (waitForEnd(kMillisecondsToObey)) {
        (void)reap(m_process);
    }
    m_process = 0;
}

std::string ChildProcessTask::output() const
{
    std::string text(kKeptOutputBytes, '\0');
    const ssize_t length
        = m_output.isOpen() ? ::pread(m_output.number(), text.data(), text.size(), 0) : 0;
    text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return text;
}

void ChildProcessTask::start(
    const std::string& program,
    const std::vector<std::string>& arguments,
    TerminationHandler onTerminated)
{
    m_onTerminated = std::move(onTerminated);
    std::string ownProgram = program;
    std::vector<std::string> ownArguments = arguments;
    const std::vector<char*> vector = argumentVector(ownProgram, ownArguments);
    m_output = FileDescriptor(::memfd_create("output", MFD_CLOEXEC));
    const pid_t parent = ::getpid();
    const pid_t process = ::fork();
    if (process == 0) {
        becomeProgram(vector.data(), parent, m_output.number());
    }
    if (process < 0) {
        reportLater(kCannotStart);
        return;
    }
    m_process = process;
    watch();
}

void ChildProcessTask::terminate()
{
    if (isRunning()) {
        ::kill(m_process, SIGTERM);
    }
}

void ChildProcessTask::watch()
{
    m_handle = openProcess(m_process);
    if (!m_handle.isOpen()) {
        ::kill(m_process, SIGKILL);
        reportLater(reap(std::exchange(m_process, 0)));
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_handle.number(), QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { ended(); });
}

void ChildProcessTask::reportLater(int status)
{
    m_pendingReport = std::make_unique<QTimer>();
    m_pendingReport->setSingleShot(true);
    m_pendingReport->callOnTimeout([this, status] {
        m_pendingReport.release()->deleteLater();
        std::exchange(m_onTerminated, {})(status);
    });
    m_pendingReport->start(0);
}

void ChildProcessTask::ended()
{
    // It is sending the signal that led here.
    m_notifier->setEnabled(false);
    m_notifier.release()->deleteLater();
    const int status = reap(std::exchange(m_process, 0));
    const TerminationHandler onTerminated = std::exchange(m_onTerminated, {});
    onTerminated(status);
}

bool ChildProcessTask::waitForEnd(int milliseconds) const
{
    pollfd waited{m_handle.number(), POLLIN, 0};
    int answered = -1;
    do {
        answered = ::poll(&waited, 1, milliseconds);
    } while (answered < 0 && errno == EINTR);
    return answered > 0;
}

} // namespace tessera
