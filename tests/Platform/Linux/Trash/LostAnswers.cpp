// SPDX-License-Identifier: MIT
#include "LostAnswers.h"

#include "support/Machine/Meanwhile.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace tessera::test {

namespace {

thread_local Renames renamesNow = Renames::Work;
thread_local bool knowsNoReplaceNow = true;

int rename(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags)
{
    aboutTo(Call::Rename);
    if (renamesNow == Renames::Fail) {
        errno = EIO;
        return -1;
    }
    const long result = ::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags);
    if (result == 0 && renamesNow == Renames::LoseTheirAnswer) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(result);
}

} // namespace

BrokenRenames::BrokenRenames(Renames renames, bool knowsNoReplace)
{
    renamesNow = renames;
    knowsNoReplaceNow = knowsNoReplace;
}

BrokenRenames::~BrokenRenames()
{
    renamesNow = Renames::Work;
    knowsNoReplaceNow = true;
}

} // namespace tessera::test

// What a program defines itself goes before what the C library has. The names that the library
// gives the parameters are reserved.

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int renameat2(
    int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    if (flags != 0 && !tessera::test::knowsNoReplaceNow) {
        errno = EINVAL;
        return -1;
    }
    return tessera::test::rename(fromFolder, from, toFolder, to, flags);
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept
{
    return tessera::test::rename(fromFolder, from, toFolder, to, 0);
}
