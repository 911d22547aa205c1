// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/LinuxUserAccount.h"

#include "Base/Url.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

namespace tessera {

namespace {

std::optional<PasswordEntry> passwordEntryOf(uid_t user)
{
    constexpr std::size_t kFirstSize = 1024;
    constexpr std::size_t kMaxSize = 1U << 20U;
    std::vector<char> buffer(kFirstSize);
    struct passwd entry { };
    struct passwd* found = nullptr;
    while (true) {
        const int error = ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
        if (error == ERANGE && buffer.size() < kMaxSize) {
            buffer.resize(buffer.size() * 2);
        } else if (error != EINTR) {
            break;
        }
    }
    if (found == nullptr) {
        return std::nullopt;
    }
    return PasswordEntry{found->pw_name, found->pw_dir};
}

} // namespace

std::optional<PasswordEntry> LinuxUserAccount::realUser() const
{
    return passwordEntryOf(::getuid());
}

std::string LinuxUserAccount::homeDirectory() const
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): what is set while threads run has room already
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        return Url(home, true).path();
    }
    const std::optional<PasswordEntry> entry = passwordEntryOf(::geteuid());
    return entry ? entry->directory : "/";
}

std::uint32_t LinuxUserAccount::userNumber() const
{
    return ::geteuid();
}

} // namespace tessera
