// SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace tessera {

/// From now on this thread and those that it starts can open nothing on any disk but for reading
/// what is in these folders, and can change nothing at all; nor can they use TCP where the kernel
/// can tell. What is open already stays open. A folder that is not there is passed over. The
/// process must have given up gaining rights. False when this kernel cannot do it.
bool keepToFolders(std::span<const char* const> folders);

} // namespace tessera
