// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

/// The folder of the program's help pages, without a trailing slash: beside a program that was only
/// built, below share beside an installed one's folder. Empty when there is none.
std::string findHelpFolder(const std::string& programFolder);

} // namespace tessera
