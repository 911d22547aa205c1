// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/AvailableMemory.h"

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <limits>
#include <string_view>

namespace tessera {

namespace {

constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t kBytesPerKilobyte = 1024;

std::uint64_t leftOfMachine(const std::string& root)
{
    std::ifstream file(root + "/proc/meminfo");
    std::string name;
    std::uint64_t kilobytes = 0;
    std::string unit;
    while (file >> name >> kilobytes) {
        if (name == "MemAvailable:") {
            return kilobytes * kBytesPerKilobyte;
        }
        std::getline(file, unit);
    }
    return kNoLimit;
}

/// Nothing to read, and the word "max", are no limit.
std::uint64_t numberIn(const std::string& path)
{
    std::ifstream file(path);
    std::uint64_t number = 0;
    return file >> number ? number : kNoLimit;
}

/// What a group holds only until somebody needs the room: the content of files, after a build most
/// of what it may have, and what the system knows of them.
std::uint64_t reclaimableIn(const std::string& path)
{
    constexpr std::array<std::string_view, 3> kKinds{
        "inactive_file", "active_file", "slab_reclaimable"};
    std::ifstream file(path);
    std::string kind;
    std::uint64_t bytes = 0;
    std::uint64_t sum = 0;
    while (file >> kind >> bytes) {
        if (std::find(kKinds.begin(), kKinds.end(), kind) != kKinds.end()) {
            sum += bytes;
        }
    }
    return sum;
}

/// The group of the second version of control groups, as a path below their mount.
std::string ownGroup(const std::string& root)
{
    constexpr std::string_view kSecondVersion = "0::/";
    std::ifstream file(root + "/proc/self/cgroup");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(kSecondVersion)) {
            return line.substr(kSecondVersion.size() - 1);
        }
    }
    return {};
}

std::uint64_t leftOfGroups(const std::string& root)
{
    std::uint64_t left = kNoLimit;
    std::string group = ownGroup(root);
    while (!group.empty()) {
        std::string folder = root;
        folder.append("/sys/fs/cgroup").append(group);
        const std::uint64_t limit = numberIn(folder + "/memory.max");
        const std::uint64_t used = numberIn(folder + "/memory.current");
        if (limit != kNoLimit && used != kNoLimit) {
            const std::uint64_t reclaimable = reclaimableIn(folder + "/memory.stat");
            const std::uint64_t needed = used - std::min(used, reclaimable);
            left = std::min(left, limit - std::min(limit, needed));
        }
        group.resize(group.rfind('/'));
    }
    return left;
}

std::uint64_t ownLimit()
{
    rlimit limit{};
    const bool isLimited = ::getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    return isLimited ? limit.rlim_cur : kNoLimit;
}

} // namespace

std::uint64_t availableMemory(const std::string& root)
{
    return std::min({leftOfMachine(root), leftOfGroups(root), ownLimit()});
}

} // namespace tessera
