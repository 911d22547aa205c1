#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Fails when a test was skipped that could have run here.

    tests/checkSkips.py REPORT PRESET

REPORT is what `ctest --output-junit` wrote. Below stand the reasons for which a test may skip
itself, each with what must be true of the build or the machine.
"""

import ctypes
import fcntl
import os
import pathlib
import re
import stat
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
SANITIZED_PRESETS = ("asan", "tsan")
LANDLOCK_CREATE_RULESET = 444
LANDLOCK_ASK_FOR_VERSION = 1
LANDLOCK_OF_ALL_TESTS = 4
PR_GET_SECCOMP = 21
ACCESS_LIST_OF_THE_OWNER = bytes.fromhex(
    "02000000" "0100 0600 ffffffff" "0400 0400 ffffffff" "2000 0400 ffffffff".replace(" ", ""))


def is_sanitized(preset):
    return preset in SANITIZED_PRESETS


def is_plain_user(_):
    return os.geteuid() != 0


def may_not_mount(_):
    return all(
        subprocess.run(["unshare", *options, "true"], capture_output=True).returncode != 0
        for options in (["--mount"], ["--user", "--mount"]))


def lacks_attribute(name, value):
    """Whether a file where tests put theirs cannot have such an attribute."""
    with tempfile.NamedTemporaryFile() as file:
        try:
            os.setxattr(file.name, name, value)
        except OSError:
            return True
    return False


def lacks_leases(_):
    with tempfile.NamedTemporaryFile() as file:
        try:
            fcntl.fcntl(file, fcntl.F_SETLEASE, fcntl.F_WRLCK)
        except OSError:
            return True
    return False


def may_not_give_away(_):
    with tempfile.NamedTemporaryFile() as file:
        try:
            os.chown(file.name, 12345, 12345)
        except OSError:
            return True
    return False


def has_no_filters(_):
    return ctypes.CDLL(None).prctl(PR_GET_SECCOMP, 0, 0, 0, 0) < 0


def has_old_fence(_):
    return ctypes.CDLL(None).syscall(
        LANDLOCK_CREATE_RULESET, None, ctypes.c_size_t(0), LANDLOCK_ASK_FOR_VERSION
    ) < LANDLOCK_OF_ALL_TESTS


def lacks_disk(maker):
    """Whether no file system that the program makes in a file can be mounted."""
    with tempfile.TemporaryDirectory() as folder:
        image = pathlib.Path(folder, "image")
        image.touch()
        os.truncate(image, 320 << 20)
        return subprocess.run(
            ["unshare", "--mount", "sh", "-c", '"$1" -q "$2" && mount -o loop "$2" "$3"',
             "sh", maker, image, folder], capture_output=True,
            env={**os.environ, "PATH": os.environ.get("PATH", os.defpath) + ":/usr/sbin:/sbin"},
        ).returncode != 0


def lacks_own_processes(_):
    return all(
        subprocess.run(["unshare", *options, "--pid", "--fork", "--mount-proc", "true"],
                       capture_output=True).returncode != 0
        for options in ([], ["--user"]))


def has_no_fuse(_):
    return not os.access("/dev/fuse", os.R_OK | os.W_OK)


def uses_no_inode_again(_):
    """Whether a file never gets the inode of the one that was removed right before."""
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder, "file")
        inodes = []
        for _ in range(200):
            file.touch()
            inodes.append(file.stat().st_ino)
            file.unlink()
    return all(inode != next for inode, next in zip(inodes, inodes[1:]))


def is_closed_to_others(_):
    return any(not folder.stat().st_mode & stat.S_IXOTH for folder in (ROOT, *ROOT.parents))


def always(_):
    return True


MAY_SKIP = {
    "the sanitizers need more memory than there is to be": is_sanitized,
    "the sanitizers' tables take more": is_sanitized,
    "a sanitizer needs more memory than that": is_sanitized,
    "only the super-user can start a program so": is_plain_user,
    "only the super-user can give files away": is_plain_user,
    "only the super-user can make a device": is_plain_user,
    "needs the super-user's rights": is_plain_user,
    "a plain user cannot make another one's file": is_plain_user,
    "only the super-user can give a folder away": may_not_give_away,
    "only the super-user can set another attribute":
        lambda _: lacks_attribute("trusted.tessera", b"1"),
    "no extended attributes on ": lambda _: lacks_attribute("user.tessera", b"1"),
    "there are no access lists here":
        lambda _: lacks_attribute("system.posix_acl_access", ACCESS_LIST_OF_THE_OWNER),
    "there are no leases here": lacks_leases,
    "this process may not mount": may_not_mount,
    "no mounts can be made here": may_not_mount,
    "no table of processes can be mounted here": lacks_own_processes,
    "no disk by mkfs.btrfs can be had here": lambda _: lacks_disk("mkfs.btrfs"),
    "no disk by mkfs.ext4 can be had here": lambda _: lacks_disk("mkfs.ext4"),
    "no disk by mkfs.xfs can be had here": lambda _: lacks_disk("mkfs.xfs"),
    "there is no /dev/fuse that this process may use": has_no_fuse,
    "the user without rights cannot start it here": is_closed_to_others,
    "this kernel cannot do it": has_old_fence,
    "this kernel has no filters": has_no_filters,
    "this kernel filters no system calls": has_no_filters,
    "this file system uses no inode again": uses_no_inode_again,
    # Calls of 32-bit programs, of which a kernel does not say whether it knows them.
    "this kernel has none": always,
}


def reason_of(test):
    """What the test itself said; empty where it said nothing."""
    said = re.search(r"^[^\n]*: Skipped\n([^\n]*)", test.findtext("system-out") or "", re.MULTILINE)
    return said[1] if said else ""


def may_skip(reason, preset):
    return any(
        reason.startswith(listed) and holds(preset) for listed, holds in MAY_SKIP.items())


def main():
    report, preset = sys.argv[1:]
    wrong = []
    for test in xml.etree.ElementTree.parse(report).iter("testcase"):
        if test.get("status") in ("notrun", "disabled"):
            reason = reason_of(test)
            if not may_skip(reason, preset):
                wrong.append(f"    {test.get('name')}: {reason or 'no reason given'}")
    if wrong:
        print("Skipped, though nothing here speaks against them (tests/checkSkips.py):", *wrong,
              sep="\n", file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
