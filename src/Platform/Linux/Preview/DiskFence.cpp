// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/DiskFence.h"

#include "Platform/Linux/Files/FileDescriptor.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

namespace tessera {

namespace {

/// All that the first version knows, from executing to making links.
constexpr std::uint64_t kFirstRights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
// Debian 12's headers end with the second version.
constexpr std::uint64_t kTruncate = std::uint64_t{1} << 14;
constexpr std::uint64_t kBindAndConnectTcp = 3;

constexpr std::uint64_t kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

/// Grows with the versions; an older kernel takes what it knows if the rest is zero.
struct Rights {
    std::uint64_t files = 0;
    std::uint64_t network = 0;
};

Rights rightsOfVersion(long version)
{
    constexpr long kKnowsReferring = 2;
    constexpr long kKnowsTruncating = 3;
    constexpr long kKnowsNetwork = 4;
    Rights rights{kFirstRights, 0};
    if (version >= kKnowsReferring) {
        rights.files |= LANDLOCK_ACCESS_FS_REFER;
    }
    if (version >= kKnowsTruncating) {
        rights.files |= kTruncate;
    }
    if (version >= kKnowsNetwork) {
        rights.network = kBindAndConnectTcp;
    }
    return rights;
}

void allowReading(const FileDescriptor& rules, const char* path)
{
    const FileDescriptor folder(::open(path, O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) {
        return;
    }
    const landlock_path_beneath_attr rule{kReading, folder.number()};
    ::syscall(SYS_landlock_add_rule, rules.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
}

} // namespace

bool keepToFolders(std::span<const char* const> folders)
{
    const long version = ::syscall(
        SYS_landlock_create_ruleset, nullptr, std::size_t{0}, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1) {
        return false;
    }
    const Rights rights = rightsOfVersion(version);
    const FileDescriptor rules(
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &rights, sizeof(rights), 0)));
    if (!rules.isOpen()) {
        return false;
    }
    for (const char* const folder : folders) {
        allowReading(rules, folder);
    }
    return ::syscall(SYS_landlock_restrict_self, rules.number(), 0) == 0;
}

} // namespace tessera
