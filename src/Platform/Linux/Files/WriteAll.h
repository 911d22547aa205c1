// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <string_view>
#include <system_error>

namespace tessera {

/// Writes the bytes at the file's position.
[[nodiscard]] std::error_code writeBytes(const FileDescriptor& file, std::string_view bytes);

/// Writes the bytes at the file's position and has them brought to the disk.
[[nodiscard]] std::error_code writeAll(const FileDescriptor& file, std::string_view bytes);

} // namespace tessera
