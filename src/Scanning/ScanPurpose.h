// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// What is to be made of a scanned directory.
enum class ScanPurpose : std::uint8_t {
    NewTree, ///< a tree of its own, with all that a volume has
    PartOfTree, ///< what takes a folder's place in a tree, made as if the walk had come by there
};

} // namespace tessera
