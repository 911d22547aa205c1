// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// How a terminal is started that begins in the folder in which it is started.
struct TerminalCommand {
    std::string program; ///< looked for as the shell does
    std::vector<std::string> arguments = {};

    bool operator==(const TerminalCommand& other) const = default;
};

/// The terminals in the order in which they are to be tried: what the user chose for all desktops,
/// then those of this desktop, then what the system has chosen, then all others. `currentDesktop`
/// is XDG_CURRENT_DESKTOP.
std::vector<TerminalCommand> terminalCommands(std::string_view currentDesktop);

} // namespace tessera
