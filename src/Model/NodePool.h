// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace tessera {

/// Memory for nodes: blocks are cut one after the other from large chunks, without a header of
/// their own, and a chunk goes back to the system when its last block does. A tree built by one
/// thread therefore lies densely in depth-first order, and releasing it is cheap.
///
/// Any thread may allocate, and any thread may release what another one allocated.
class NodePool {
public:
    /// Returns `bytes` bytes aligned for a pointer; throws std::bad_alloc when memory is out.
    [[nodiscard]] static void* allocate(std::size_t bytes);

    /// Gives back a block that allocate() returned.
    static void release(void* block) noexcept;
};

} // namespace tessera
