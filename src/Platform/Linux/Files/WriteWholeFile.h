// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace tessera {

/// Makes `bytes` the content of the file at `path`, as a shell's `>` would, but all at once where
/// that can be done. Links are followed. A regular file is replaced by another one of the same
/// mode, owner and access list; what this would change otherwise (a file with several names, one of
/// another user, one in a folder that takes no new files) and everything that is no regular file is
/// written where it is, and may then hold a part of the bytes after an error. May wait for the
/// reader of a pipe.
[[nodiscard]] std::error_code writeWholeFile(const std::string& path, std::string_view bytes);

} // namespace tessera
