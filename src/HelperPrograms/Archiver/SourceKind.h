// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// What is to be archived. A link is a file, wherever it leads.
enum class SourceKind : std::uint8_t { Any, Folder, File };

} // namespace tessera
