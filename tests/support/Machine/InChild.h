// SPDX-License-Identifier: MIT
#pragma once

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
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

/// Gives up the super-user's rights for good, and those that a user has in a name space of their
/// own; false when that fails.
inline bool becomePlainUser()
{
    constexpr uid_t kNobody = 65534;
    const bool isPlainUser = ::geteuid() != 0 || (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none{};
    const bool hasNone = ::syscall(SYS_capset, &header, none.data()) == 0;
    // Who gives up rights is hidden from everybody, itself too, unless it says otherwise.
    return isPlainUser && hasNone && ::prctl(PR_SET_DUMPABLE, 1) == 0;
}

/// As inChild(), without the super-user's rights.
inline int asPlainUser(const std::function<int()>& work)
{
    constexpr int kCannotGiveUpRights = 100;
    return inChild([&work] { return becomePlainUser() ? work() : kCannotGiveUpRights; });
}

} // namespace tessera::test
