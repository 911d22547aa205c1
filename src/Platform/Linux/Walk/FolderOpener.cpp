// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/FolderOpener.h"

#include <cerrno>
#include <optional>
#include <utility>

namespace tessera {

int unlessGone(int error)
{
    const bool isGone = error == ENOENT || error == ENOTDIR || error == ELOOP;
    return isGone ? 0 : error;
}

OpenedFolder unopened(int error, const StatusResult& found)
{
    if (!found) {
        return {FileDescriptor(), unlessGone(found.error)};
    }
    if (unlessGone(error) == 0 || !found.status.isDirectory) {
        return {};
    }
    return {FileDescriptor(), error, found.status.allocatedBytes};
}

FolderOpener::FolderOpener(const FileDescriptor& start, const FileStatus& status)
    : m_boundary(status)
    , m_mayHoldAutomounts(mayHoldAutomounts(start))
{
}

OpenedFolder FolderOpener::open(const FileDescriptor& parent, const std::string& name) const
{
    if (m_mayHoldAutomounts) {
        const StatusResult found = statusAt(parent.number(), name.c_str());
        if (isOtherMount(parent, name.c_str(), found)) {
            return {};
        }
        if (!found) {
            return {FileDescriptor(), unlessGone(found.error)};
        }
        if (!found.status.isDirectory) {
            return {};
        }
    }
    return openOnMount(parent, name.c_str());
}

OpenedFolder FolderOpener::openOnMount(const FileDescriptor& parent, const char* name) const
{
    auto opened = openDirectoryOnSameMountAt(parent.number(), name);
    const int error = errno;
    if (!opened) {
        return openAnywhere(parent, name);
    }
    if (opened->isOpen()) {
        return {std::move(*opened)};
    }
    // What is mounted is not even looked at: who answers for it may take for ever.
    return error == EXDEV ? OpenedFolder{} : unopenedIn(parent, name, error);
}

OpenedFolder FolderOpener::openAnywhere(const FileDescriptor& parent, const char* name) const
{
    FileDescriptor opened = openDirectoryAt(parent.number(), name);
    const int error = errno;
    if (!opened.isOpen()) {
        return unopenedIn(parent, name, error);
    }
    const StatusResult found = statusOf(opened.number());
    if (isOtherMount(parent, name, found)) {
        return {};
    }
    if (!found) {
        return {FileDescriptor(), unlessGone(found.error)};
    }
    return {std::move(opened)};
}

OpenedFolder FolderOpener::unopenedIn(
    const FileDescriptor& parent, const char* name, int error) const
{
    const StatusResult found = statusAt(parent.number(), name);
    return isOtherMount(parent, name, found) ? OpenedFolder{} : unopened(error, found);
}

/// Also of a mount that gives no status, as one that another user has mounted for themselves.
bool FolderOpener::isOtherMount(
    const FileDescriptor& parent, const char* name, const StatusResult& found) const
{
    const bool isKnown = found || unlessGone(found.error) == 0;
    const StatusResult mount = isKnown ? found : mountAt(parent.number(), name);
    return mount && m_boundary.isCrossedBy(mount.status);
}

} // namespace tessera
