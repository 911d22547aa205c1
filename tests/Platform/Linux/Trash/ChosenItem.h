// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"
#include "Platform/Linux/Files/HeldItem.h"
#include "Platform/Linux/Files/LinuxItemStates.h"

#include <fcntl.h>

#include <cstdint>
#include <ctime>
#include <string>

namespace tessera::test {

/// A time that all changes so far are dated before, and all changes from now on not before. Kernels
/// date a file exactly when somebody has looked at it since its last change, and else by a coarser
/// clock, which is behind.
inline FileTime afterTheTick()
{
    const auto timeBy = [](clockid_t clock) {
        timespec now{};
        ::clock_gettime(clock, &now);
        return FileTime{now.tv_sec, static_cast<std::uint32_t>(now.tv_nsec)};
    };
    const FileTime last = timeBy(CLOCK_REALTIME);
    FileTime now = timeBy(CLOCK_REALTIME_COARSE);
    while (!(last < now)) {
        now = timeBy(CLOCK_REALTIME_COARSE);
    }
    return now;
}

/// The item at that path as it is chosen now, after a scan that began at that time.
inline ItemToRecycle chosenItem(const std::string& path, const FileTime& scanned)
{
    const HeldItem found = holdItemAt(FileDescriptor(), path);
    ItemToRecycle item(Url(path, found.status.isDirectory));
    item.expected = {itemStateOf(found.status, found.birth), scanned};
    return item;
}

} // namespace tessera::test
