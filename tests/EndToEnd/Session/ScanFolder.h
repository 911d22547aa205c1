// SPDX-License-Identifier: MIT
#pragma once

#include "Model/TopFolder.h"

#include <memory>
#include <string>

namespace tessera::test {

/// The tree of a real folder, scanned now.
std::unique_ptr<TopFolder> scanFolder(const std::string& path);

} // namespace tessera::test
