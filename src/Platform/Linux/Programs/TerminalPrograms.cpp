// SPDX-License-Identifier: MIT
#include "Platform/Linux/Programs/TerminalPrograms.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessera {

namespace {

struct DesktopTerminal {
    std::string_view desktop; ///< as XDG_CURRENT_DESKTOP names it
    const char* program;
    const char* argument = nullptr;
};

/// Of each desktop the newest first. Ptyxis would open no window of its own where it runs already.
constexpr std::array kTerminals{
    DesktopTerminal{"GNOME", "ptyxis", "--new-window"},
    DesktopTerminal{"GNOME", "kgx"},
    DesktopTerminal{"GNOME", "gnome-terminal"},
    DesktopTerminal{"KDE", "konsole"},
    DesktopTerminal{"XFCE", "xfce4-terminal"},
    DesktopTerminal{"MATE", "mate-terminal"},
    DesktopTerminal{"X-Cinnamon", "gnome-terminal"},
    DesktopTerminal{"LXQt", "qterminal"},
    DesktopTerminal{"LXDE", "lxterminal"},
    DesktopTerminal{"Deepin", "deepin-terminal"},
};

/// These need no desktop.
constexpr std::array kLastTerminals{"foot", "alacritty", "kitty", "xterm"};

bool isOneOf(std::string_view list, std::string_view wanted)
{
    while (!list.empty()) {
        const std::string_view first = list.substr(0, list.find(':'));
        if (first == wanted) {
            return true;
        }
        list.remove_prefix(std::min(first.size() + 1, list.size()));
    }
    return false;
}

void add(std::vector<TerminalCommand>& commands, const DesktopTerminal& terminal)
{
    TerminalCommand command{terminal.program};
    if (terminal.argument != nullptr) {
        command.arguments.emplace_back(terminal.argument);
    }
    if (std::ranges::find(commands, command) == commands.end()) {
        commands.push_back(std::move(command));
    }
}

} // namespace

std::vector<TerminalCommand> terminalCommands(std::string_view currentDesktop)
{
    // https://gitlab.freedesktop.org/terminal-wg/specifications
    std::vector<TerminalCommand> commands{{"xdg-terminal-exec"}};
    for (const DesktopTerminal& terminal : kTerminals) {
        if (isOneOf(currentDesktop, terminal.desktop)) {
            add(commands, terminal);
        }
    }
    commands.push_back({"x-terminal-emulator"});
    for (const DesktopTerminal& terminal : kTerminals) {
        add(commands, terminal);
    }
    for (const char* const program : kLastTerminals) {
        add(commands, {{}, program});
    }
    return commands;
}

} // namespace tessera
