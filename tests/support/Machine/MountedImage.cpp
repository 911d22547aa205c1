// SPDX-License-Identifier: MIT
#include "support/Machine/MountedImage.h"

#include "support/Machine/OwnMounts.h"

#include <sys/mount.h>
#include <unistd.h>

#include <cstdlib>

namespace tessera::test {

namespace {

constexpr off_t kLength = off_t{320} << 20; // the smallest that XFS takes, and nearly all holes

} // namespace

MountedImage::MountedImage(std::vector<std::string> makeFileSystem)
{
    if (::geteuid() != 0 || !OwnMounts::enter()) {
        m_problem = "this process may not mount";
        return;
    }
    m_outside.makeFolder("disk");
    m_outside.makeSparseFile("image", kLength);
    const std::string program = makeFileSystem.front();
    makeFileSystem.erase(makeFileSystem.begin());
    makeFileSystem.push_back(m_outside.pathOf("image"));
    const ProgramResult made = run(program, makeFileSystem);
    const ProgramResult mounted = made.exitStatus == 0
        ? run("mount", {"-o", "loop", m_outside.pathOf("image"), path()})
        : made;
    if (mounted.exitStatus != 0) {
        m_problem = "it cannot be made or mounted: " + mounted.standardError;
    }
}

ProgramResult MountedImage::run(
    const std::string& program, const std::vector<std::string>& arguments)
{
    const char* const path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe)
    const std::string known = path != nullptr ? path : "/usr/bin:/bin";
    return runProgram(program, arguments, {"PATH=" + known + ":/usr/sbin:/sbin"});
}

MountedImage::~MountedImage()
{
    if (m_problem.empty()) {
        ::umount2(path().c_str(), MNT_DETACH);
    }
}

} // namespace tessera::test
