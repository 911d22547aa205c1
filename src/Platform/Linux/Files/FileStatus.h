// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Platform/Linux/Files/FileDescriptor.h"

#include <cstdint>
#include <optional>

namespace tessera {

/// What the system says of a file without opening it.
struct FileStatus {
    FileIdentity identity;
    bool isDirectory = false;
    bool isRegular = false;
    std::uint32_t mode = 0; ///< kind and permissions, as stat(2) has them
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
    std::uint64_t linkCount = 0; ///< names that the file has
    std::uint64_t length = 0; ///< bytes, what holes stand for included
    std::uint64_t allocatedBytes = 0;
    std::int64_t modified = 0; ///< seconds since 1970-01-01 00:00 UTC
    std::uint32_t modifiedNanoseconds = 0; ///< beside these seconds
    std::int64_t changed = 0; ///< of content, names, owner or rights; likewise
    std::uint32_t changedNanoseconds = 0;
    std::optional<std::uint64_t> mountId; ///< missing before Linux 5.8
    std::optional<bool> isMountRoot; ///< missing before Linux 5.8
    bool isAutomountTrigger = false; ///< a file system gets mounted here when somebody enters
};

/// A status, or the errno that says why there is none.
struct StatusResult {
    int error = 0;
    FileStatus status;

    explicit operator bool() const { return error == 0; }
};

/// Whether a symbolic link that is the last component of a path leads on to its target.
enum class LinkMode : std::uint8_t { Keep, Follow };

/// The status of `name` in the open directory `directory`. Triggers no automount; it waits for as
/// long as the file system takes to answer. Kernels and sandboxes without statx(2) say nothing of
/// mounts.
[[nodiscard]] StatusResult statusAt(
    int directory, const char* name, LinkMode linkMode = LinkMode::Keep);

/// What the system itself knows of the place `name` in the open directory `directory`: the mount
/// and the device, and nothing else. Whoever answers for what is mounted there is not asked, who
/// may refuse, take for ever, or not be there any more. An error where statx(2) is missing.
[[nodiscard]] StatusResult mountAt(int directory, const char* name);

/// The status of what an open descriptor stands for.
[[nodiscard]] StatusResult statusOf(int descriptor);

/// Opens the directory `name` in the open directory `directory`; nothing that is no directory.
/// Where nothing is opened, errno says why.
[[nodiscard]] FileDescriptor openDirectoryAt(int directory, const char* name);

/// The same, but nothing where a mount begins (EXDEV). Nothing at all is known, and the caller has
/// to look by other means, on kernels before Linux 5.6 and in sandboxes older than the call.
[[nodiscard]] std::optional<FileDescriptor> openDirectoryOnSameMountAt(
    int directory, const char* name);

/// As openDirectoryAt(), if the directory is `expected` still: when something else has taken its
/// name meanwhile, nothing is opened for good (ENOENT). Nor where it cannot be told, for the reason
/// in errno.
[[nodiscard]] FileDescriptor openDirectoryAt(
    int directory, const char* name, const FileIdentity& expected);

} // namespace tessera
