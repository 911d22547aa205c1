// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <cstdint>

namespace tessera {

/// The pictures on the toolbar's buttons.
enum class ToolbarSymbol : std::uint8_t {
    Home, ///< a house
    Actions, ///< a gear
    Ignore, ///< an eye that is crossed out
};

/// Drawn as outlines in the colour of the palette's text, so that it is sharp at any size and fits
/// light and dark themes, also when the theme changes.
QIcon iconOf(ToolbarSymbol symbol);

} // namespace tessera
