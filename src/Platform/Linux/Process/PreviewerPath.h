// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

/// Where the program that decodes previews is: beside a program that was only built, below libexec
/// beside an installed one's folder, for nobody else starts it. Where it is in neither place the
/// second is answered, so that starting it fails.
std::string findPreviewer(const std::string& programFolder);

} // namespace tessera
