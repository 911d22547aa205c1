// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/SystemCallFilter.h"

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessera {

namespace {

#if defined(__x86_64__)
constexpr std::uint32_t kMachine = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__) && defined(__AARCH64EL__)
constexpr std::uint32_t kMachine = AUDIT_ARCH_AARCH64;
#elif defined(__riscv) && __riscv_xlen == 64
constexpr std::uint32_t kMachine = AUDIT_ARCH_RISCV64;
#else
constexpr std::uint32_t kMachine = 0;
#endif

/// Whatever their arguments are.
constexpr std::array kHarmlessCalls{
    // reading, and writing to what is open
    SYS_read,
    SYS_pread64,
    SYS_readv,
    SYS_preadv,
    SYS_write,
    SYS_writev,
    SYS_lseek,
    SYS_close,
    SYS_dup,
    SYS_getdents64,
    SYS_pipe2,
    SYS_eventfd2,
    SYS_ppoll,
    // asking about files
    SYS_fstat,
#ifdef SYS_newfstatat // machines of 32 bits have others
    SYS_newfstatat,
#endif
    SYS_statx,
    SYS_readlinkat,
    SYS_faccessat,
    SYS_faccessat2,
    // memory
    SYS_brk,
#ifdef SYS_mmap
    SYS_mmap,
#endif
    SYS_munmap,
    SYS_mprotect,
    SYS_mremap,
    SYS_madvise,
    // threads and signals
    SYS_futex,
    SYS_sched_yield,
    SYS_sched_getaffinity,
    SYS_set_robust_list,
    SYS_rseq,
    SYS_sigaltstack,
    SYS_rt_sigaction,
    SYS_rt_sigprocmask,
    SYS_rt_sigreturn,
    SYS_restart_syscall,
    SYS_exit,
    SYS_exit_group,
    // the time, and who and where one is
    SYS_clock_gettime,
    SYS_clock_getres,
    SYS_clock_nanosleep,
    SYS_nanosleep,
    SYS_gettimeofday,
    SYS_getpid,
    SYS_gettid,
    SYS_getuid,
    SYS_geteuid,
    SYS_getgid,
    SYS_getegid,
    SYS_uname,
    SYS_sysinfo,
    SYS_getrandom,
#ifdef __x86_64__
    // what other machines do by calls that are listed already
    SYS_stat,
    SYS_lstat,
    SYS_access,
    SYS_readlink,
    SYS_pipe,
    SYS_poll,
    SYS_time,
#endif
};

constexpr std::uint32_t kChangingOpenFlags = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC | O_APPEND;

constexpr std::uint32_t offsetOfArgument(std::size_t index)
{
    // The lower half of the number, on machines that put it first.
    return static_cast<std::uint32_t>(offsetof(seccomp_data, args) + index * sizeof(std::uint64_t));
}

/// Instructions for the kernel. Whoever gets to the end without a decision is refused.
class Program {
public:
    Program()
    {
        load(offsetof(seccomp_data, arch));
        skipUnless(BPF_JEQ, kMachine, 1);
        skip(1);
        decide(SECCOMP_RET_KILL_PROCESS);
        loadCall();
    }

    void allow(long call)
    {
        skipUnless(BPF_JEQ, static_cast<std::uint32_t>(call), 1);
        decide(SECCOMP_RET_ALLOW);
    }

    /// Only with such an argument.
    void allowIf(long call, std::size_t argument, unsigned comparison, std::uint32_t value)
    {
        skipUnless(BPF_JEQ, static_cast<std::uint32_t>(call), 4);
        load(offsetOfArgument(argument));
        skipUnless(comparison, value, 1);
        decide(SECCOMP_RET_ALLOW);
        loadCall();
    }

    void allowWithoutBits(long call, std::size_t argument, std::uint32_t bits)
    {
        skipUnless(BPF_JEQ, static_cast<std::uint32_t>(call), 4);
        load(offsetOfArgument(argument));
        skipUnless(BPF_JSET, bits, 1);
        refuse();
        decide(SECCOMP_RET_ALLOW);
    }

    bool install()
    {
        refuse();
        const sock_fprog program{
            static_cast<unsigned short>(m_instructions.size()), m_instructions.data()};
        return ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
    }

private:
    void add(unsigned code, std::uint32_t value, std::uint8_t otherwise = 0)
    {
        m_instructions.push_back({static_cast<std::uint16_t>(code), 0, otherwise, value});
    }

    void load(std::size_t offset)
    {
        add(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset));
    }

    void loadCall() { load(offsetof(seccomp_data, nr)); }

    void skipUnless(unsigned comparison, std::uint32_t value, std::uint8_t instructions)
    {
        add(BPF_JMP | comparison | BPF_K, value, instructions);
    }

    void skip(std::uint32_t instructions) { add(BPF_JMP | BPF_JA, instructions); }

    void refuse() { decide(SECCOMP_RET_ERRNO | ENOSYS); }

    void decide(std::uint32_t action) { add(BPF_RET | BPF_K, action); }

    std::vector<sock_filter> m_instructions;
};

} // namespace

bool keepToHarmlessSystemCalls()
{
    if (kMachine == 0) {
        return false;
    }
    Program program;
    for (const long call : kHarmlessCalls) {
        program.allow(call);
    }
    program.allowWithoutBits(SYS_openat, 2, kChangingOpenFlags);
#ifdef __x86_64__
    program.allowWithoutBits(SYS_open, 1, kChangingOpenFlags);
#endif
    program.allowIf(SYS_clone, 0, BPF_JSET, CLONE_THREAD);
    program.allowIf(SYS_prctl, 0, BPF_JEQ, PR_SET_NAME);
    // How a process aborts.
    program.allowIf(SYS_tgkill, 0, BPF_JEQ, static_cast<std::uint32_t>(::getpid()));
    return program.install();
}

} // namespace tessera
