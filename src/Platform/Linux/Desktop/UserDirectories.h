// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tessera {

/// The well-known folders of a user, absolute paths by their keys ("XDG_MUSIC_DIR"), of a text like
/// ~/.config/user-dirs.dirs. Lines that are none of its format are left out.
/// https://www.freedesktop.org/wiki/Software/xdg-user-dirs/
[[nodiscard]] std::map<std::string, std::string, std::less<>> userDirectories(
    std::string_view text, const std::string& homeDirectory);

} // namespace tessera
