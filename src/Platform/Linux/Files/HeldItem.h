// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

/// An item that is held, not opened for reading: nothing else gets its inode number meanwhile, even
/// when it is removed.
struct HeldItem {
    int error = 0; ///< errno; 0 when it is held
    FileDescriptor held;
    FileStatus status; ///< of the item itself, be it a link
    std::optional<std::uint64_t> birth; ///< as birthTimeOf()
};

/// Holds the item of that name in the open folder. Opens no device and waits for no pipe.
[[nodiscard]] HeldItem holdItemAt(const FileDescriptor& folder, const std::string& name);

/// When what the descriptor stands for was made, in nanoseconds since 1970-01-01 00:00 UTC and
/// around the end of that count, for comparing: it stays over renames and is another one when an
/// inode number is used again. Missing where the file system or the kernel does not tell (statx(2),
/// STATX_BTIME).
[[nodiscard]] std::optional<std::uint64_t> birthTimeOf(int descriptor);

/// Whether another item than the held one is there now; false when nothing is there or nobody can
/// tell.
[[nodiscard]] bool isAnotherItemAt(
    const FileDescriptor& folder, const std::string& name, const FileDescriptor& held);

} // namespace tessera
