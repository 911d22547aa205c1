// SPDX-License-Identifier: MIT
#include "Desktop/UserAccount.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace tessera {

namespace {

/// The real user's entry. Without one there is no home to show and no name to compare, so it ends
/// the process, in release builds too.
PasswordEntry passwordEntry(const UserAccount& account, const char* function)
{
    std::optional<PasswordEntry> pw = account.realUser();
    if (!pw) {
        (void)std::fprintf(stderr, "Assertion failed: (pw), function %s.\n", function);
        std::abort();
    }
    return *std::move(pw);
}

} // namespace

std::string realUserName(const UserAccount& account)
{
    return passwordEntry(account, "realUserName").name;
}

std::string realHomeDirectory(const UserAccount& account)
{
    return passwordEntry(account, "realHomeDirectory").directory;
}

} // namespace tessera
