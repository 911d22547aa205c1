// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Mounts/MountBoundary.h"

#include <cstdint>
#include <string>

namespace tessera {

/// A folder that is open for reading, or what is known of one that is not.
struct OpenedFolder {
    FileDescriptor handle;
    /// Why it cannot be read, as errno has it. 0 where there is nothing to read: the folder went
    /// away, or another mount begins there.
    int error = 0;
    std::uint64_t allocatedBytes = 0; ///< of the directory itself; told where it cannot be opened
};

/// The error, or 0 for one that says that the folder is not there any more, or that something else
/// has taken its place.
[[nodiscard]] int unlessGone(int error);

/// A folder that opening it has failed for with that errno, by what its status is all the same.
[[nodiscard]] OpenedFolder unopened(int error, const StatusResult& found);

/// Opens the folders of one walk, which stays on the mount where it starts and mounts nothing.
/// Callable from any thread.
class FolderOpener {
public:
    /// The open directory where the walk starts, and its status.
    FolderOpener(const FileDescriptor& start, const FileStatus& status);

    /// Opens the directory `name` in the open directory `parent`.
    [[nodiscard]] OpenedFolder open(const FileDescriptor& parent, const std::string& name) const;

private:
    OpenedFolder openOnMount(const FileDescriptor& parent, const char* name) const;
    OpenedFolder openAnywhere(const FileDescriptor& parent, const char* name) const;
    OpenedFolder unopenedIn(const FileDescriptor& parent, const char* name, int error) const;
    bool isOtherMount(
        const FileDescriptor& parent, const char* name, const StatusResult& found) const;

    MountBoundary m_boundary;
    bool m_mayHoldAutomounts;
};

} // namespace tessera
