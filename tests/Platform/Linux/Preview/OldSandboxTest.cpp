// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Walk/LinuxDirectoryEnumerator.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <string>

namespace tessera::test {
namespace {

/// From now on this process gets EPERM for openat2, as in container sandboxes older than it.
bool forbidOpenat2()
{
    std::array<sock_filter, 4> program{
        sock_filter{BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(seccomp_data, nr)},
        sock_filter{BPF_JMP | BPF_JEQ | BPF_K, 0, 1, SYS_openat2},
        sock_filter{BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | EPERM},
        sock_filter{BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW}};
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

/// The names below the folder, deepest last.
std::string namesBelow(const std::string& path)
{
    LinuxDirectoryEnumerator enumerator(
        OpenedFolder{openDirectoryAt(AT_FDCWD, path.c_str())},
        ItemKeys::SizeAndHidden,
        {.helpers = 0});
    std::string names;
    for (DirectoryItem item; enumerator.next(item);) {
        names += item.name;
    }
    return names;
}

bool isEmptyBelow(const std::string& path, std::string_view mount)
{
    LinuxDirectoryEnumerator enumerator(
        OpenedFolder{openDirectoryAt(AT_FDCWD, path.c_str())}, ItemKeys::None, {.helpers = 0});
    bool isInMount = false;
    for (DirectoryItem item; enumerator.next(item);) {
        if (item.level == 1) {
            isInMount = item.name == mount;
            if (!isInMount && item.isDirectory) {
                enumerator.skipDescendants();
            }
        } else if (isInMount) {
            return false;
        }
    }
    return true;
}

void exitAfter(bool isRight)
{
    std::_Exit(isRight ? 0 : 1);
}

TEST(OldSandbox, AFolderIsWalkedAsEver)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    tree.makeFile("a/b/c");
    EXPECT_EXIT(
        exitAfter(forbidOpenat2() && namesBelow(tree.path()) == "abc"),
        testing::ExitedWithCode(0),
        "");
}

TEST(OldSandbox, WhatIsMountedInsideIsNotEntered)
{
    EXPECT_EXIT(
        exitAfter(forbidOpenat2() && isEmptyBelow("/", "proc")), testing::ExitedWithCode(0), "");
}

TEST(OldSandbox, AWayDownWithoutLinksIsTakenStepByStep)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    const FileIdentity wanted = statusAt(AT_FDCWD, tree.pathOf("a/b").c_str()).status.identity;
    const auto reaches = [&] {
        const NamedPlace place = openFolderOfWithoutLinks(tree.pathOf("a/b/item"));
        return place.error == 0 && statusOf(place.folder.number()).status.identity == wanted;
    };
    EXPECT_EXIT(exitAfter(forbidOpenat2() && reaches()), testing::ExitedWithCode(0), "");
}

TEST(OldSandbox, ALinkOnTheWayDownIsAnErrorThereToo)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    tree.makeFile("file");
    tree.makeSymbolicLink("link", "a");
    const auto errorOf
        = [&](const char* name) { return openFolderOfWithoutLinks(tree.pathOf(name)).error; };
    EXPECT_EXIT(
        exitAfter(
            forbidOpenat2() && errorOf("link/item") == ELOOP && errorOf("link/b/item") == ELOOP
            && errorOf("file/item") == ENOTDIR && errorOf("gone/item") == ENOENT),
        testing::ExitedWithCode(0),
        "");
}

} // namespace
} // namespace tessera::test
