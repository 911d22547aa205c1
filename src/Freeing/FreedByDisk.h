// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ItemStates.h"
#include "Desktop/OpenFiles.h"
#include "Desktop/SharedExtents.h"
#include "Freeing/FreedByScan.h"
#include "Freeing/FreedSpace.h"

#include <vector>

namespace tessera {

/// What the disk and the system said of the files of a question, in its order.
struct FreeingFacts {
    std::vector<ItemAnswer> states; ///< may be shorter: of the others nothing is known
    std::vector<FileExtents> extents; ///< likewise; counts for regular files alone
    OpenFilesAnswer open;
};

/// What is freed when that is so. Sizes are the disk's, of this moment, where they are known.
///
/// A file that shares nothing frees all that it takes; one that shares some of it at least what is
/// its own and stored as it is, by content, and at most all. A file that is open or has names that
/// were not chosen may free nothing, and so may one of which too little is known.
[[nodiscard]] FreedSpace freedByDisk(const FreeingQuestion& question, const FreeingFacts& facts);

} // namespace tessera
