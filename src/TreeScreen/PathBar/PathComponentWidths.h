// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

namespace tessera {

/// How wide the components of a path bar are, in points, one after the other.
struct PathComponentWidths {
    /// The first and all from `firstAfterGap` on are shown; what lies between has width 0.
    std::vector<double> widths;
    std::size_t firstAfterGap = 1;

    bool hasGap() const { return firstAfterGap > 1; }
};

/// A component that is this wide shows its icon and the chevron after it.
inline constexpr double kIconComponentWidth = 32.0;

/// The width of the dots that stand for components without room.
inline constexpr double kPathGapWidth = 16.0;

/// Shares the available width out to components of the given natural widths. Where it does not
/// suffice, the widest components before the last become narrower first; where too little of their
/// names would be left, the first ones show their icons alone; then the last one becomes narrower,
/// and then those in the middle are left out, because where a path begins and where it ends say
/// most. Whole points.
PathComponentWidths pathComponentWidths(std::span<const double> natural, double available);

} // namespace tessera
