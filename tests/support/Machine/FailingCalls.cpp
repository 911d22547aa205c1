// SPDX-License-Identifier: MIT
#include "support/Machine/FailingCalls.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <future>
#include <thread>
#include <vector>

namespace tessera::test {

namespace {

constexpr unsigned short kLoad = BPF_LD | BPF_W | BPF_ABS;
constexpr unsigned short kJumpIfEqual = BPF_JMP | BPF_JEQ | BPF_K;
constexpr unsigned short kReturn = BPF_RET | BPF_K;
constexpr std::uint32_t kThirdArgument = offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t);

#ifdef SYS_readlink
constexpr long kReadLink = SYS_readlink;
#else // newer machines have the general one only
constexpr long kReadLink = SYS_readlinkat;
#endif

constexpr std::array<long, 20> kFileCalls{
    SYS_openat,  SYS_openat2,  SYS_statx,  SYS_newfstatat, SYS_fstat, SYS_renameat, SYS_renameat2,
    SYS_mkdirat, SYS_unlinkat, kReadLink,  SYS_fsync,      SYS_read,  SYS_write,    SYS_pread64,
    SYS_fcntl,   SYS_flock,    SYS_fchmod, SYS_getdents64, SYS_lseek, SYS_fstatfs};

/// From now on the calling thread's calls about files wait for an answer from who has the
/// descriptor; -1 when the system does not let it be arranged.
int listenToFileCalls()
{
    std::vector<sock_filter> program{{kLoad, 0, 0, offsetof(seccomp_data, nr)}};
    for (const long number : kFileCalls) {
        program.push_back({kJumpIfEqual, 0, 1, static_cast<std::uint32_t>(number)});
        program.push_back({kReturn, 0, 0, SECCOMP_RET_USER_NOTIF});
    }
    program.push_back({kReturn, 0, 0, SECCOMP_RET_ALLOW});
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) {
        return -1;
    }
    return static_cast<int>(
        ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &filter));
}

bool isCallWaiting(int listener)
{
    constexpr int kMilliseconds = 10; // before one looks whether there is anybody left to call
    pollfd waiting{listener, POLLIN, 0};
    return ::poll(&waiting, 1, kMilliseconds) > 0 && (waiting.revents & POLLIN) != 0;
}

/// Lets the call that waits be made, or has it report the error.
void answerCall(int listener, int error)
{
    seccomp_notif call{};
    if (::ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &call) != 0) {
        return;
    }
    seccomp_notif_resp answer{};
    answer.id = call.id;
    answer.error = -error;
    answer.flags = error == 0 ? SECCOMP_USER_NOTIF_FLAG_CONTINUE : 0;
    (void)::ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &answer);
}

} // namespace

bool makeCallFail(const FailingCall& call)
{
    const auto number = static_cast<std::uint32_t>(call.number);
    const auto error = static_cast<std::uint32_t>(call.error);
    std::vector<sock_filter> program{
        {kLoad, 0, 0, offsetof(seccomp_data, nr)},
        {kJumpIfEqual, 1, 0, number},
        {kReturn, 0, 0, SECCOMP_RET_ALLOW}};
    if (call.thirdArgument) {
        program.push_back({kLoad, 0, 0, kThirdArgument});
        program.push_back({kJumpIfEqual, 1, 0, *call.thirdArgument});
        program.push_back({kReturn, 0, 0, SECCOMP_RET_ALLOW});
    }
    program.push_back({kReturn, 0, 0, SECCOMP_RET_ERRNO | error});
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

std::optional<bool> withOneCallFailing(int place, int error, const std::function<void()>& work)
{
    std::promise<int> listening;
    std::thread worker([&listening, &work] {
        const int listener = listenToFileCalls();
        listening.set_value(listener);
        if (listener >= 0) {
            work();
        }
    });
    // To the thread's very end: sanitizers write to pipes of their own when it ends.
    std::atomic<bool> hasEnded = false;
    std::thread watcher([&worker, &hasEnded] {
        worker.join();
        hasEnded = true;
    });
    const int listener = listening.get_future().get();
    int calls = 0;
    while (listener >= 0 && !hasEnded) {
        if (isCallWaiting(listener) && ++calls) {
            answerCall(listener, calls == place ? error : 0);
        }
    }
    watcher.join();
    if (listener < 0) {
        return std::nullopt;
    }
    ::close(listener);
    return calls >= place;
}

} // namespace tessera::test
