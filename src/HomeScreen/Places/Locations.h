// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Desktop/LocationKind.h"

#include <string>
#include <vector>

namespace tessera {

class StandardFolders;

/// A well-known folder of the user.
struct Location {
    LocationKind kind = LocationKind::Home;
    Url url;

    bool operator==(const Location& other) const = default;
};

/// Where a location may be; the first of the places that is a directory counts.
struct LocationCandidate {
    LocationKind kind = LocationKind::Home;
    std::vector<std::string> paths; ///< absolute, as bytes

    bool operator==(const LocationCandidate& other) const = default;
};

/// The well-known folders in the order in which they are shown: each in its usual place, or where
/// the system has its equivalent.
[[nodiscard]] std::vector<LocationCandidate> locationCandidates(
    const std::string& homeDirectory, const StandardFolders& folders);

/// The locations without those whose folder came before under another name.
[[nodiscard]] std::vector<Location> withoutRepeatedFolders(const std::vector<Location>& locations);

} // namespace tessera
