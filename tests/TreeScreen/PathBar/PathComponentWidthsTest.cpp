// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/PathComponentWidths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<double> widths(const std::vector<double>& natural, double available)
{
    return pathComponentWidths(natural, available).widths;
}

} // namespace

TEST(PathComponentWidths, ComponentsWithEnoughRoomKeepTheirWidths)
{
    EXPECT_THAT(widths({60, 80, 100}, 240), ElementsAre(60, 80, 100));
}

TEST(PathComponentWidths, NoComponentsHaveNoWidths)
{
    EXPECT_THAT(widths({}, 100), IsEmpty());
}

TEST(PathComponentWidths, TheWidestBeforeTheLastBecomeNarrowerFirst)
{
    EXPECT_THAT(widths({40, 120, 100, 150}, 370), ElementsAre(40, 90, 90, 150));
}

TEST(PathComponentWidths, TheFirstShowIconsAloneSoThatNamesStayReadable)
{
    EXPECT_THAT(widths({90, 120, 100, 150}, 320), ElementsAre(32, 69, 69, 150));
    EXPECT_THAT(widths({90, 120, 100, 150}, 300), ElementsAre(32, 32, 86, 150));
}

TEST(PathComponentWidths, TheLastKeepsItsWidthUntilTheOthersShowIconsAlone)
{
    EXPECT_THAT(widths({60, 80, 150}, 214), ElementsAre(32, 32, 150));
}

TEST(PathComponentWidths, ThenTheLastBecomesNarrowerToo)
{
    EXPECT_THAT(widths({60, 80, 150}, 180), ElementsAre(32, 32, 116));
}

TEST(PathComponentWidths, ThenThoseInTheMiddleAreLeftOut)
{
    const auto shared = pathComponentWidths(std::vector<double>{60, 70, 80, 90, 150}, 192);

    EXPECT_THAT(shared.widths, ElementsAre(32, 0, 0, 32, 96));
    EXPECT_TRUE(shared.hasGap());
    EXPECT_EQ(shared.firstAfterGap, 3U);
}

TEST(PathComponentWidths, WithLeastRoomOnlyTheLastIsShown)
{
    EXPECT_THAT(widths({60, 70, 150}, 100), ElementsAre(0, 0, 96));
    EXPECT_THAT(widths({60, 70, 150}, 50), ElementsAre(0, 0, 50));
}

TEST(PathComponentWidths, ASingleComponentTakesWhatThereIs)
{
    EXPECT_THAT(widths({200}, 120), ElementsAre(120));
    EXPECT_THAT(widths({200}, 50), ElementsAre(50));
}

TEST(PathComponentWidths, AllTogetherNeverTakeMoreThanThereIs)
{
    const std::vector<double> natural{50, 75, 200, 33, 60, 140};
    for (int available = 0; available < 600; ++available) {
        const PathComponentWidths shared = pathComponentWidths(natural, available);
        double used = shared.hasGap() && shared.widths.front() > 0 ? kPathGapWidth : 0;
        for (const double width : shared.widths) {
            used += width;
        }
        EXPECT_LE(used, available);
    }
}

} // namespace tessera
