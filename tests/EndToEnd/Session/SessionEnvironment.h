// SPDX-License-Identifier: MIT
#pragma once

#include "support/Machine/TempTree.h"

#include <string>
#include <vector>

namespace tessera::test {

/// Makes the folders of a user's session and returns what tells a program of them: "home" and those
/// of the XDG base directories.
std::vector<std::string> sessionEnvironment(
    const TempTree& session, const std::string& display, const std::string& busAddress);

} // namespace tessera::test
