// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// From now on, blocks of the heap that are as large as a crowded folder's buffers go back to the
/// system one by one, instead of leaving holes behind while a scan's tree grows: a million items
/// took 68 MB at their peak instead of 76. To be called before any other thread runs.
void returnLargeBlocksAtOnce();

/// Gives the system back what the heap keeps free. Each helper thread leaves a heap of its own
/// behind, which for a million items came to 8 bytes an item.
void returnFreeMemory();

} // namespace tessera
