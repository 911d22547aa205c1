// SPDX-License-Identifier: MIT
#include "support/OwnMounts.h"

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <system_error>

namespace tessera::test {

namespace {

void check(int result, const std::string& what)
{
    if (result != 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

/// In a name space of its own anybody is allowed to mount, as the user who they are.
bool enterAsUser()
{
    const std::string user = std::to_string(::geteuid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    std::ofstream map("/proc/self/uid_map");
    map << user << ' ' << user << " 1\n";
    return map.flush().good();
}

bool leaveTheSystemsMounts()
{
    return (::unshare(CLONE_NEWNS) == 0 || enterAsUser())
        && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace

OwnMounts::~OwnMounts()
{
    for (auto point = m_points.rbegin(); point != m_points.rend(); ++point) {
        ::umount2(point->c_str(), MNT_DETACH);
    }
}

bool OwnMounts::enter()
{
    static const bool hasLeft = leaveTheSystemsMounts();
    return hasLeft;
}

void OwnMounts::mountMemory(const std::string& path, const std::string& options)
{
    check(::mount("tessera-test", path.c_str(), "tmpfs", 0, options.c_str()), path);
    m_points.push_back(path);
}

void OwnMounts::bind(const std::string& existing, const std::string& path)
{
    check(::mount(existing.c_str(), path.c_str(), nullptr, MS_BIND, nullptr), path);
    m_points.push_back(path);
}

void OwnMounts::makeReadOnly(const std::string& path) const
{
    check(::mount(nullptr, path.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), path);
}

} // namespace tessera::test
