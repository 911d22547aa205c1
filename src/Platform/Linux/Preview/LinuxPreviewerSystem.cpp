// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/PreviewerSystem.h"
#include "Platform/Linux/Preview/DiskFence.h"
#include "Platform/Linux/Preview/LinuxReadableFile.h"
#include "Platform/Linux/Preview/SystemCallFilter.h"

#include <linux/capability.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <span>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tessera {

namespace {

struct Limit {
    decltype(RLIMIT_AS) resource;
    rlim_t most;
};

constexpr std::array kLimits{
#ifndef TESSERA_SANITIZED
    // The sanitizers' own tables are larger.
    Limit{RLIMIT_AS, rlim_t{512} * 1024 * 1024},
#endif
    Limit{RLIMIT_CPU, 10}, // seconds
    Limit{RLIMIT_FSIZE, 0}, // bytes of any file that is written
    Limit{RLIMIT_NOFILE, 64},
    Limit{RLIMIT_CORE, 0}};

/// For a decoder that waits for what never comes, which costs no processor time.
constexpr unsigned kMostSeconds = 60;

/// Libraries start a thread for each processor, and each takes some of the memory.
constexpr int kMostProcessors = 4;

/// Fonts that a document names without bringing them, and libraries that decoders load late.
constexpr std::array kReadableFolders{
    "/usr/share", "/usr/local/share", "/usr/lib", "/usr/lib64", "/lib", "/lib64"};

/// What is lower already stays so.
bool setLimit(const Limit& limit)
{
    rlimit values{};
    if (::getrlimit(limit.resource, &values) != 0) {
        return false;
    }
    const rlim_t most = std::min(limit.most, values.rlim_max);
    values = {most, most};
    return ::setrlimit(limit.resource, &values) == 0;
}

void keepToFewProcessors()
{
    cpu_set_t processors{};
    if (::sched_getaffinity(0, sizeof(processors), &processors) != 0) {
        return;
    }
    int kept = 0;
    for (std::size_t i = 0; i < CPU_SETSIZE; ++i) {
        if (CPU_ISSET(i, &processors) && ++kept > kMostProcessors) {
            CPU_CLR(i, &processors);
        }
    }
    (void)::sched_setaffinity(0, sizeof(processors), &processors);
}

/// The super-user's powers, which would make limits a matter of taste.
void dropCapabilities()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none{};
    ::syscall(SYS_capset, &header, none.data());
}

} // namespace

PreviewerInput standardInput()
{
    struct stat values { };
    if (::fstat(STDIN_FILENO, &values) != 0 || !S_ISREG(values.st_mode)) {
        return {};
    }
    return {
        std::make_unique<LinuxReadableFile>(FileDescriptor(STDIN_FILENO)),
        static_cast<std::uint64_t>(values.st_size)};
}

bool writeStandardOutput(std::span<const char> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
    return true;
}

bool limitProcess()
{
    (void)::prctl(PR_SET_PDEATHSIG, SIGKILL);
    // Neither a picture of its memory when it crashes, nor a debugger.
    (void)::prctl(PR_SET_DUMPABLE, 0);
    (void)::close_range(STDERR_FILENO + 1, UINT_MAX, 0);
    ::alarm(kMostSeconds);
    keepToFewProcessors();
#ifdef __GLIBC__
    // A heap for each thread would reserve much of the memory.
    ::mallopt(M_ARENA_MAX, 1); // NOLINT(concurrency-mt-unsafe): no other thread is running yet
#endif
    if (!std::ranges::all_of(kLimits, setLimit)) {
        return false;
    }
    dropCapabilities();
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
}

void confineProcess()
{
    // Either may be missing in this kernel; the limits hold without them.
    (void)keepToFolders(kReadableFolders);
    (void)keepToHarmlessSystemCalls();
}

} // namespace tessera
