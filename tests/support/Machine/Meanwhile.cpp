// SPDX-License-Identifier: MIT
#include "Meanwhile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <optional>
#include <utility>

namespace tessera::test {

namespace {

struct Waiting {
    Call call;
    std::function<void()> happens;
};

thread_local std::optional<Waiting> waiting;

} // namespace

Meanwhile::Meanwhile(Call call, std::function<void()> happens)
{
    waiting = {call, std::move(happens)};
}

Meanwhile::~Meanwhile()
{
    waiting.reset();
}

void aboutTo(Call call)
{
    if (waiting && waiting->call == call) {
        const std::function<void()> happens = std::move(waiting->happens);
        waiting.reset();
        happens();
    }
}

} // namespace tessera::test

// What a program defines itself goes before what the C library has. The names that the library
// gives the parameters are reserved.

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int fsync(int file)
{
    tessera::test::aboutTo(tessera::test::Call::Sync);
    return static_cast<int>(::syscall(SYS_fsync, file));
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int fchmod(int file, mode_t mode) noexcept
{
    tessera::test::aboutTo(tessera::test::Call::ChangeMode);
    return static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int openat(int folder, const char* path, int flags, ...)
{
    tessera::test::aboutTo(tessera::test::Call::Open);
    mode_t mode = 0;
    if ((flags & (O_CREAT | O_TMPFILE)) != 0) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
    }
    return static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode));
}
