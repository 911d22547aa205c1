// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// Any bytes as text that a terminal shows on one line and never obeys: what is no UTF-8, control
/// characters of either set, invisible letters and what turns the direction of text come out as
/// \xNN for each byte, and the rest as it is.
std::string terminalText(std::string_view bytes);

} // namespace tessera
