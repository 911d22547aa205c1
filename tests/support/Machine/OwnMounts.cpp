// SPDX-License-Identifier: MIT
#include "support/Machine/OwnMounts.h"

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

bool writeTo(const std::string& path, const std::string& text)
{
    std::ofstream file(path);
    file << text << std::flush;
    return file.good();
}

/// In a name space of its own anybody is allowed to mount, as the user who they are.
bool enterAsUser()
{
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0
        && writeTo("/proc/self/uid_map", user + ' ' + user + " 1\n")
        && writeTo("/proc/self/setgroups", "deny\n")
        && writeTo("/proc/self/gid_map", group + ' ' + group + " 1\n");
}

bool leaveTheSystemsMounts()
{
    return (::unshare(CLONE_NEWNS) == 0 || enterAsUser())
        && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace

OwnMounts::~OwnMounts()
{
    while (!m_points.empty()) {
        ::umount2(m_points.back().c_str(), MNT_DETACH);
        m_points.pop_back();
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

void OwnMounts::makeReadOnly(const std::string& path)
{
    check(::mount(nullptr, path.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), path);
}

} // namespace tessera::test
