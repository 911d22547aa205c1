// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Places/Locations.h"
#include "Widgets/PlaceLook.h"

#include <vector>

namespace tessera {

class MountedVolumes;
class Url;

/// Knows the disks and the well-known folders by their icons and names, without touching any of
/// them. Main thread only.
class KnownPlaces final {
public:
    /// The volumes must outlive it.
    KnownPlaces(const MountedVolumes& volumes, std::vector<LocationCandidate> locations);

    /// How any folder looks; a plain one goes by its own name.
    PlaceLook look(const Url& folder) const;

private:
    const MountedVolumes& m_volumes;
    const std::vector<LocationCandidate> m_locations;
};

} // namespace tessera
