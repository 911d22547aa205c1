// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <optional>
#include <string>

namespace tessera {

/// All bytes from the file's current place to its end. Nothing when the file is not open, or cannot
/// be read to its end; then errno says why. Blocks for as long as the file system takes.
[[nodiscard]] std::optional<std::string> readToEnd(const FileDescriptor& file);

} // namespace tessera
