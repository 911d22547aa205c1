// SPDX-License-Identifier: MIT
#pragma once

#include "Basket/LastBackups.h"
#include "Desktop/Alert.h"
#include "Freeing/FreedSpace.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tessera {

/// What the user is to know before several items go to the trash together. Names are bytes.
struct MoveAllFacts {
    struct Item {
        std::string name;
        std::uint64_t bytes = 0;
    };

    std::vector<Item> items; ///< one at least, in any order
    bool haveFolders = false;
    std::vector<std::string> hidden;
    std::vector<std::string> inSystemFolders;
    KeptFiles heldOpen; ///< of that reason; of none where its count is 0
    std::vector<std::string> ofOthers; ///< items of other users
    std::vector<BackupSet> lastBackups;
};

/// The one question about all of them: first a sentence for each thing to be warned of, then how
/// many items there are, how large, and which are the largest. As high as that, however many there
/// are. Its second button, which Return presses, does nothing. Needs an application object.
[[nodiscard]] AlertText moveAllQuestion(const MoveAllFacts& facts);

} // namespace tessera
