// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/PutBack.h"

#include <functional>

namespace tessera {

/// Moves an item from the trash back into the folder that it was in, by one rename that replaces
/// nothing, if it is the very item still; when another one has taken its name in that moment, that
/// goes back to the trash, and so does the item when its folder was moved away in that moment. Once
/// the move is on the disk for good its info file goes. Until then that stays as it is, so that
/// after a failure at any point the item is in one of the two places and any program can restore
/// what is in the trash. Blocks for as long as the file systems take; any thread.
///
/// `aboutToMove` hears where the item is about to be, once nothing is known to stand in its way.
[[nodiscard]] PutBackResult putBackFromTrash(
    const PutBackRequest& request, const std::function<void(const Url& place)>& aboutToMove);

} // namespace tessera
