// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Alert.h"

#include <QStringList>

#include <string>
#include <vector>

namespace tessera {

/// What the user is told when several items were moved to the trash.
struct MoveAllOutcome {
    QStringList stayed; ///< a sentence for each item that was not moved, with its short name
    std::vector<std::string> grownFolders; ///< names of RecycleResult::grownFolders, as bytes
    bool isAnyInDoubt = false; ///< nobody can tell where some of what stayed is
};

/// As high however many items there are; something has to be told. Needs an application object.
[[nodiscard]] AlertText moveAllReport(const MoveAllOutcome& outcome);

} // namespace tessera
