// SPDX-License-Identifier: MIT
#pragma once

#include "Random.h"

#include <string>

namespace tessera::test {

/// Fills the empty folder at `path` with some ten thousand items of every kind: odd names, hard and
/// symbolic links, sparse files, folders that may not be read, and one folder deeper than any path
/// can say.
void buildDisk(const std::string& path, Random& random);

} // namespace tessera::test
