// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tessera {

class File;

/// Why a name has no size, of a file that is counted at another of its names; empty for all that
/// have one.
QString otherNameText(const File& node);

} // namespace tessera
