// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

/// The folder that holds this program, as bytes and without a trailing slash; empty when the
/// system does not say.
std::string executableFolder();

} // namespace tessera
