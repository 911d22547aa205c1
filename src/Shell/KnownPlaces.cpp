// SPDX-License-Identifier: MIT
#include "Shell/KnownPlaces.h"

#include "Model/MountedVolumes.h"
#include "Shell/PlaceIcons.h"
#include "Shell/PlaceNames.h"
#include "Utils/DisplayText.h"

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
