// SPDX-License-Identifier: MIT
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <functional>

namespace tessera::test {

/// Does something in a process of its own, for what it does to the process cannot be undone.
/// Returns what that returned, which is below 128, or 128 and more when a signal ended it.
inline int inChild(const std::function<int()>& work)
{
    constexpr int kSignalBase = 128;
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work());
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalBase + WTERMSIG(status);
}

} // namespace tessera::test
