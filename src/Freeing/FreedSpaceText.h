// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace tessera {

struct FreedSpace;

/// How much that is, as one text for the user: "1.2 GB", "1 GB to 1.2 GB", or "at least 1 GB" where
/// not all files were looked at.
[[nodiscard]] QString freedSpaceText(const FreedSpace& space);

/// Why it may be less than the files take, a sentence for each reason, with the largest file of it.
[[nodiscard]] QStringList freedSpaceReasons(const FreedSpace& space);

} // namespace tessera
