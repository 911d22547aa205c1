// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Alert.h"

#include <system_error>

namespace tessera {

class Url;

/// What tells the user why a folder cannot be scanned.
[[nodiscard]] AlertText scanProblem(const Url& folder, const std::error_code& problem);

} // namespace tessera
