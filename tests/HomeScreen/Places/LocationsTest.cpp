// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/Locations.h"

#include "support/Fakes/FakeRootModelServices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;

TEST(Locations, AreTwelveInTheirOrder)
{
    std::vector<std::string> paths;
    for (const LocationCandidate& candidate :
         locationCandidates("/home/eve", test::FakeStandardFolders())) {
        ASSERT_EQ(candidate.paths.size(), 1U);
        paths.push_back(candidate.paths.front());
    }
    EXPECT_THAT(
        paths,
        ElementsAre(
            "/home/eve",
            "/Applications",
            "/home/eve/Desktop",
            "/home/eve/Documents",
            "/home/eve/Downloads",
            "/home/eve/Library",
            "/home/eve/Movies",
            "/home/eve/Music",
            "/home/eve/Pictures",
            "/home/eve/Public",
            "/home/eve/Sites",
            "/home/eve/.Trash"));
}

TEST(Locations, AnEquivalentComesAfterTheUsualPlace)
{
    test::FakeStandardFolders folders;
    folders.equivalents = {{LocationKind::Movies, "/Videos"}};
    const auto candidates = locationCandidates("/home/eve", folders);
    EXPECT_EQ(
        candidates.at(6),
        (LocationCandidate{LocationKind::Movies, {"/home/eve/Movies", "/home/eve/Videos"}}));
}

TEST(Locations, AFolderCountsOnce)
{
    const Location home{LocationKind::Home, Url("/home/eve", true)};
    const Location desktop{LocationKind::Desktop, Url("/home/eve", true)};
    const Location music{LocationKind::Music, Url("/home/eve/Music", true)};
    EXPECT_THAT(withoutRepeatedFolders({home, desktop, music}), ElementsAre(home, music));
}

} // namespace
} // namespace tessera
