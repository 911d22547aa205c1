// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <cstdint>

class QPalette;

namespace tessera {

/// Colours from packed integers, and blends of colours. Pure functions, usable on any thread.

/// 0x00RRGGBB, opaque; the top byte is ignored.
QColor colorWithHex(std::uint32_t hex);

/// 0xRRGGBBAA.
QColor colorWithRgba(std::uint32_t hex);

/// The opaque colour of the same hue and saturation whose brightness (of hue, saturation and
/// brightness) is greater by `amount`, which may be negative. The brightness stays within 0 to 1.
QColor withBrightnessAdded(const QColor& color, double amount);

/// Whether windows of these colours are dark.
bool isDark(const QPalette& palette);

/// Blended toward white; `level` 0 is the colour itself, 1 is white.
QColor highlightWithLevel(const QColor& color, double level);

/// Blended toward black; `level` 0 is the colour itself, 1 is black.
QColor shadowWithLevel(const QColor& color, double level);

} // namespace tessera
