// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// How large the tooltip is, in points. Both types are equally wide. The form of TooltipWindow is
/// as large as the highest; a lower one shows the upper part of it.
inline constexpr double kTooltipWidth = 210;

/// Of the short type, which shows the beginning of what the full one says.
inline constexpr double kShortTooltipHeight = 42;

/// Of the full type, beside the path or the names at its end, and what those take at most.
inline constexpr double kTooltipHeightWithoutText = 67;
inline constexpr double kMostTooltipTextHeight = 56;
inline constexpr double kFullTooltipHeight = kTooltipHeightWithoutText + kMostTooltipTextHeight;

/// What the text takes at most where it says of names that their files are counted elsewhere:
/// twelve lines, for two paths and a sentence.
inline constexpr double kMostTextHeightOfOtherNames = 144;

/// Of the full type for space that is no item, of which there is no more to say than a name and a
/// size.
inline constexpr double kSpaceTooltipHeight = 44;

} // namespace tessera
