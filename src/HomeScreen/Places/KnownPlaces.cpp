// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/KnownPlaces.h"

#include "Base/DisplayText.h"
#include "Desktop/MountedVolumes.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "HomeScreen/Places/PlaceNames.h"

#include <algorithm>
#include <utility>

namespace tessera {

KnownPlaces::KnownPlaces(const MountedVolumes& volumes, std::vector<LocationCandidate> locations)
    : m_volumes(volumes)
    , m_locations(std::move(locations))
{
}

PlaceLook KnownPlaces::look(const Url& folder) const
{
    if (const auto volume = m_volumes.volumeAt(folder.path())) {
        return {volumeIcon(volume->kind), localizedVolumeName(folder)};
    }
    const auto known = std::ranges::find_if(m_locations, [&](const LocationCandidate& location) {
        return std::ranges::find(location.paths, folder.path()) != location.paths.end();
    });
    if (known != m_locations.end()) {
        return {locationIcon(known->kind), localizedLocationName({known->kind, folder})};
    }
    return {plainFolderIcon(), displayText(folder.lastPathComponent())};
}

} // namespace tessera
