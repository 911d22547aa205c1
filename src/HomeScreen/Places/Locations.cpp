// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/Locations.h"

#include "Desktop/StandardFolders.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

struct UsualPlace {
    LocationKind kind;
    bool isInHome;
    std::string_view path;
};

constexpr std::array kUsualPlaces{
    UsualPlace{LocationKind::Home, true, ""},
    UsualPlace{LocationKind::Applications, false, "/Applications"},
    UsualPlace{LocationKind::Desktop, true, "/Desktop"},
    UsualPlace{LocationKind::Documents, true, "/Documents"},
    UsualPlace{LocationKind::Downloads, true, "/Downloads"},
    UsualPlace{LocationKind::Library, true, "/Library"},
    UsualPlace{LocationKind::Movies, true, "/Movies"},
    UsualPlace{LocationKind::Music, true, "/Music"},
    UsualPlace{LocationKind::Pictures, true, "/Pictures"},
    UsualPlace{LocationKind::Public, true, "/Public"},
    UsualPlace{LocationKind::Sites, true, "/Sites"},
    UsualPlace{LocationKind::Trash, true, "/.Trash"},
};

} // namespace

std::vector<LocationCandidate> locationCandidates(
    const std::string& homeDirectory, const StandardFolders& folders)
{
    std::vector<LocationCandidate> candidates;
    for (const UsualPlace& usual : kUsualPlaces) {
        LocationCandidate candidate{usual.kind, {}};
        candidate.paths.push_back(
            (usual.isInHome ? homeDirectory : std::string()) + std::string(usual.path));
        std::string equivalent = folders.equivalentLocation(usual.kind, homeDirectory);
        if (!equivalent.empty()) {
            candidate.paths.push_back(std::move(equivalent));
        }
        candidates.push_back(std::move(candidate));
    }
    return candidates;
}

std::vector<Location> withoutRepeatedFolders(const std::vector<Location>& locations)
{
    std::vector<Location> result;
    std::copy_if(
        locations.begin(),
        locations.end(),
        std::back_inserter(result),
        [&result](const Location& location) {
            return std::ranges::find(result, location.url, &Location::url) == result.end();
        });
    return result;
}

} // namespace tessera
