// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// The class of a node. Folders come last, so that one comparison tells them from leaves.
enum class NodeType : std::uint8_t {
    File,
    Document,
    FreeSpace,
    Unknown,
    TimeMachine,
    Folder,
    TopFolder,
    Volume,
};

} // namespace tessera
