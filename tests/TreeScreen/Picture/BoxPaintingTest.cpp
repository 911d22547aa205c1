// SPDX-License-Identifier: MIT
#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "Widgets/ColorHelper.h"
#include "support/LevelPicture.h"
#include "support/ParameterNames.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr QRgb kBackground = test::LevelPicture::kBackground;
constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kLineGrey = 0xFF404040;
constexpr QRgb kUnaccountedGrey = 0xFF999999;
constexpr QRgb kSelectedBlue = 0xFF3875D7;
constexpr QRgb kTeal = 0xFF5AA89F;

/// Boxes painted at one device pixel a point and at two.
class BoxPainting : public testing::TestWithParam<double> {
protected:
    BoxPainting() { m_folder->setHue(3); }

    test::LevelPicture folderPicture(long level, const Rect& rect)
    {
        return picture(m_folder.get(), level, rect);
    }
    test::LevelPicture documentPicture(long level, const Rect& rect)
    {
        return picture(m_document.get(), level, rect);
    }
    static test::LevelPicture picture(File* node, long level, const Rect& rect)
    {
        test::LevelPicture picture(level, GetParam());
        picture.add(node, rect);
        picture.paint();
        return picture;
    }
    test::LevelPicture groupPicture(long level, const Rect& rect)
    {
        test::LevelPicture picture(level, GetParam());
        picture.addGroup({m_document.get(), m_folder.get()}, rect);
        picture.paint();
        return picture;
    }

    std::unique_ptr<Folder> m_folder = makeNode<Folder>("Folder");
    std::unique_ptr<Document> m_document = makeNode<Document>("Document");
};

INSTANTIATE_TEST_SUITE_P(Scales, BoxPainting, testing::Values(1.0, 2.0), test::kNameOfScale);

TEST_P(BoxPainting, AFolderOfTheTopLevelStandsTwoPointsInside)
{
    const auto picture = folderPicture(0, {10, 10, 30, 10});
    EXPECT_EQ(picture.at(25, 12), kTeal);
    EXPECT_EQ(picture.at(25, 17.5), kTeal);
    EXPECT_EQ(picture.at(12, 15), kTeal);
    EXPECT_EQ(picture.at(37.5, 15), kTeal);
    EXPECT_EQ(picture.at(25, 11.5), kBackground);
    EXPECT_EQ(picture.at(25, 18), kBackground);
    EXPECT_EQ(picture.at(11.5, 15), kBackground);
    EXPECT_EQ(picture.at(38, 15), kBackground);
}

TEST_P(BoxPainting, AFolderTooLowForALabelHasNone)
{
    const auto picture = folderPicture(0, {10, 10, 30, 10});
    EXPECT_EQ(picture.countOther({14, 12, 22, 6}, kTeal), 0);
}

TEST_P(BoxPainting, AFolderOf200SquarePointsHasWiderCorners)
{
    // Three quarters of a point in from the corner lie inside a radius of 1, outside one of 2.
    const auto wide = folderPicture(0, {10, 10, 20, 10});
    const auto tight = folderPicture(0, {10, 10, 19.9, 10});
    EXPECT_LT(qGreen(wide.at(12, 12)) - qGreen(kBackground), 0xA8 * 6 / 10);
    EXPECT_GT(qGreen(tight.at(12.5, 12.5)) - qGreen(kBackground), 0xA8 * 7 / 10);
    EXPECT_EQ(tight.at(13, 12), kTeal);
    EXPECT_NE(wide.at(13, 12), kTeal);
}

TEST_P(BoxPainting, AFolderOf150SquarePointsHasTightCorners)
{
    // A radius of 1 covers some four fifths of the outermost point, and nothing of the next.
    const auto picture = folderPicture(0, {10, 10, 15, 10});
    EXPECT_NE(picture.at(12, 12), kTeal);
    EXPECT_NE(picture.at(12, 12), kBackground);
    EXPECT_EQ(picture.at(13, 12), kTeal);
    EXPECT_EQ(picture.at(12, 13), kTeal);
}

TEST_P(BoxPainting, ASelectedFolderIsDarker)
{
    m_folder->setSelected(true);
    const auto picture = folderPicture(0, {10, 10, 30, 10});
    EXPECT_EQ(picture.at(25, 15), folderBoxColor(*m_folder, 0).rgb());
    // NOLINTNEXTLINE(bugprone-integer-division): whole pixels are wanted
    EXPECT_NEAR(qGreen(picture.at(25, 15)), 0xA8 - 255 * 3 / 10, 1);
}

TEST_P(BoxPainting, AFolderBelowTheTopLevelHasABlackRimOfOnePoint)
{
    const QRgb fill = folderBoxColor(*m_folder, 1).rgb();
    const auto picture = folderPicture(1, {10, 10, 30, 12});
    EXPECT_EQ(picture.at(25, 10.5), kBackground);
    EXPECT_EQ(picture.at(25, 11), kBlack);
    EXPECT_EQ(picture.at(25, 11.5), kBlack);
    EXPECT_EQ(picture.at(25, 12), fill);
    EXPECT_EQ(picture.at(25, 19.5), fill);
    EXPECT_EQ(picture.at(25, 20), kBlack);
    EXPECT_EQ(picture.at(11.5, 16), kBlack);
    EXPECT_EQ(picture.at(38.5, 16), kBlack);
    EXPECT_EQ(picture.at(39, 16), kBackground);
}

TEST_P(BoxPainting, AFolderThinnerThanItsRimsIsBlack)
{
    const auto picture = folderPicture(1, {10, 10, 30, 4.5});
    EXPECT_EQ(picture.at(25, 12), kBlack);
    EXPECT_EQ(picture.at(25, 12.5), kBlack);
}

TEST_P(BoxPainting, AFolderHigherThan20PointsInsideShowsItsName)
{
    const auto picture = folderPicture(0, {10, 10, 44, 25});
    EXPECT_GT(picture.countOther({20, 19, 29, 13}, kTeal), 20);
}

TEST_P(BoxPainting, AFolderOf20PointsInsideDoesNotShowItsName)
{
    const auto picture = folderPicture(0, {10, 10, 44, 24});
    EXPECT_EQ(picture.countOther({14, 14, 36, 16}, kTeal), 0);
}

TEST_P(BoxPainting, AFolder30PointsWideInsideDoesNotShowItsName)
{
    EXPECT_EQ(folderPicture(0, {10, 10, 34, 60}).countOther({14, 14, 26, 50}, kTeal), 0);
    EXPECT_GT(folderPicture(0, {10, 10, 35, 60}).countOther({14, 14, 26, 50}, kTeal), 0);
}

TEST_P(BoxPainting, AFoldersNameStaysWithinItsTwoLabelRectangles)
{
    const auto picture = folderPicture(0, {10, 10, 100, 60});
    // x from 20 on for 85 points, y from 19 on for 14 points and 1 more for the light edge.
    EXPECT_EQ(picture.countOther({14, 14, 92, 5}, kTeal), 0);
    EXPECT_EQ(picture.countOther({14, 34, 92, 30}, kTeal), 0);
    EXPECT_EQ(picture.countOther({14, 14, 6, 50}, kTeal), 0);
}

TEST_P(BoxPainting, AFoldersNameIsBlackWithALightEdge)
{
    const auto picture = folderPicture(0, {10, 10, 100, 60});
    const QRgb edge
        = qRgb(0x5A + (255 - 0x5A) / 5, 0xA8 + (255 - 0xA8) / 5, 0x9F + (255 - 0x9F) / 5);
    int darkest = 255;
    int lightest = 0;
    for (double y = 19; y < 34; y += 1 / GetParam()) {
        for (double x = 20; x < 60; x += 1 / GetParam()) {
            darkest = std::min(darkest, qRed(picture.at(x, y)));
            lightest = std::max(lightest, qRed(picture.at(x, y)));
        }
    }
    EXPECT_LT(darkest, 0x20);
    EXPECT_GT(lightest, qRed(kTeal) + 20);
    EXPECT_LE(lightest, qRed(edge) + 1);
}

TEST_P(BoxPainting, ASelectedFoldersNameIsWhiteAlone)
{
    m_folder->setSelected(true);
    const QRgb fill = folderBoxColor(*m_folder, 0).rgb();
    const auto picture = folderPicture(0, {10, 10, 100, 60});
    EXPECT_GT(picture.countOther({20, 19, 85, 14}, fill), 20);
    for (double y = 19; y < 34; y += 1 / GetParam()) {
        for (double x = 20; x < 60; x += 1 / GetParam()) {
            EXPECT_GE(qRed(picture.at(x, y)), qRed(fill));
        }
    }
}

TEST_P(BoxPainting, BoxesUnderOnePointInsideAreNotPainted)
{
    const auto unknown = makeNode<Unknown>({});
    for (File* node :
         std::initializer_list<File*>{m_folder.get(), m_document.get(), unknown.get()}) {
        EXPECT_EQ(picture(node, 0, {10, 10, 4.9, 40}).countOther({5, 5, 20, 50}, kBackground), 0);
        EXPECT_EQ(picture(node, 1, {10, 10, 40, 2.9}).countOther({5, 5, 50, 20}, kBackground), 0);
    }
    EXPECT_EQ(groupPicture(1, {10, 10, 3.9, 40}).countOther({5, 5, 20, 50}, kBackground), 0);
}

TEST_P(BoxPainting, ARoundedBoxThatBeginsAtZeroIsNotPainted)
{
    EXPECT_EQ(folderPicture(0, {-2, 10, 30, 10}).countOther({0, 0, 60, 60}, kBackground), 0);
    EXPECT_EQ(folderPicture(0, {10, -2, 30, 10}).countOther({0, 0, 60, 60}, kBackground), 0);
}

TEST_P(BoxPainting, ALargeDocumentBelowTheTopLevelFadesFromGreyToWhite)
{
    // Inside from (11, 11), 198 by 98.
    const auto picture = documentPicture(1, {10, 10, 200, 100});
    EXPECT_NEAR(qRed(picture.at(60, 12)), 230, 2);
    EXPECT_NEAR(qRed(picture.at(60, 11 + 24.5)), 243, 2);
    EXPECT_EQ(picture.at(30, 61), kWhite);
    EXPECT_EQ(picture.at(30, 100), kWhite);
}

TEST_P(BoxPainting, ALargeDocumentBelowTheTopLevelHasAGreyOutline)
{
    const auto picture = documentPicture(1, {10, 10, 200, 100});
    EXPECT_EQ(picture.at(60, 11), kLineGrey);
    EXPECT_EQ(picture.at(11, 60), kLineGrey);
    EXPECT_EQ(picture.at(60, 108.5), kLineGrey);
    EXPECT_EQ(picture.at(208.5, 60), kLineGrey);
    EXPECT_EQ(picture.at(60, 10.5), kBackground);
    EXPECT_EQ(picture.at(60, 109), kBackground);
}

TEST_P(BoxPainting, ALargeDocumentHasItsCornerCutAndARoundedFold)
{
    // Fold 28, curl 5: the outline's right edge is at 208.5 and its top at 11.5.
    const auto picture = documentPicture(1, {10, 10, 200, 100});
    EXPECT_EQ(picture.at(206, 13), kBackground);
    EXPECT_EQ(picture.at(187, 25), picture.at(60, 25)); // between fold and cut
    // The fold's curves meet at (185.5, 34.5) and end at (208.5, 39.5).
    EXPECT_NE(picture.at(185.5, 34), picture.at(60, 34));
    EXPECT_NE(picture.at(207, 39), picture.at(60, 39));
    // A straight fold would pass here.
    EXPECT_EQ(picture.at(181, 38), picture.at(60, 38));
}

TEST_P(BoxPainting, ALargeDocumentShowsNameAndSizeOnTwoLines)
{
    m_document->setTotalAllocation(12300000);
    // o = floor(82 / 2) + 3 = 44: the lines start at 11 + 37 and 16 below.
    const auto picture = documentPicture(1, {10, 10, 200, 100});
    const auto inkIn = [&](double top, double height) {
        int count = 0;
        for (double y = top; y < top + height; y += 1 / GetParam()) {
            count += picture.countOther({60, y, 100, 1 / GetParam()}, picture.at(20, y));
        }
        return count;
    };
    EXPECT_EQ(inkIn(13, 35), 0);
    EXPECT_GT(inkIn(48, 16), 20);
    EXPECT_GT(inkIn(64, 16), 20);
    EXPECT_EQ(inkIn(80, 25), 0);
}

TEST_P(BoxPainting, ADocumentsLabelNeedsMoreThan20By30PointsInside)
{
    m_document->setTotalAllocation(12300000);
    EXPECT_EQ(documentPicture(0, {10, 10, 60, 24}).countOther({17, 20, 30, 12}, kWhite), 0);
    EXPECT_GT(documentPicture(0, {10, 10, 60, 24.5}).countOther({17, 20, 40, 12}, kWhite), 10);
    EXPECT_EQ(documentPicture(0, {10, 10, 34, 44}).countOther({13, 33, 28, 16}, kWhite), 0);
    EXPECT_GT(documentPicture(0, {10, 10, 34.5, 44}).countOther({13, 33, 28, 16}, kWhite), 10);
}

TEST_P(BoxPainting, ADocumentsSizeNeedsMoreThan80By60PointsInside)
{
    m_document->setTotalAllocation(12300000);
    // With one line it starts at floor(64 / 2) + 3 = 35 points, with two the second at 44.
    EXPECT_EQ(documentPicture(0, {10, 10, 90, 84}).countOther({17, 12 + 51, 70, 20}, kWhite), 0);
    EXPECT_GT(documentPicture(0, {10, 10, 90, 85}).countOther({17, 12 + 51, 70, 20}, kWhite), 0);
    EXPECT_EQ(documentPicture(0, {10, 10, 64, 100}).countOther({17, 12 + 59, 50, 20}, kWhite), 0);
    EXPECT_GT(documentPicture(0, {10, 10, 65, 100}).countOther({17, 12 + 52, 50, 20}, kWhite), 0);
}

TEST_P(BoxPainting, ASmallDocumentOfTheTopLevelIsSolidWithoutOutline)
{
    // Inside 16 by 16, fold 4.
    const auto picture = documentPicture(0, {10, 10, 20, 20});
    EXPECT_EQ(picture.at(12, 20), kWhite);
    EXPECT_EQ(picture.at(20, 12), kWhite);
    EXPECT_EQ(picture.at(20, 27.5), kWhite);
    EXPECT_EQ(picture.at(27.5, 25), kWhite);
    EXPECT_EQ(picture.at(28, 25), kBackground);
    EXPECT_EQ(picture.countOther({12, 17, 16, 11}, kWhite), 0);
}

TEST_P(BoxPainting, ASmallDocumentHasAStraightFold)
{
    // Down at 28 - 4 - 0.5, across at 12 + 4 - 0.5, each 1 point wide.
    const auto picture = documentPicture(0, {10, 10, 20, 20});
    EXPECT_EQ(picture.at(23, 14), kLineGrey);
    EXPECT_EQ(picture.at(23.5, 15.5), kLineGrey);
    EXPECT_EQ(picture.at(26, 15), kLineGrey);
    EXPECT_EQ(picture.at(22.5, 14), kWhite);
    EXPECT_EQ(picture.at(26, 16), kWhite);
    EXPECT_EQ(picture.at(27.5, 12), kBackground);
}

TEST_P(BoxPainting, ADocumentFadesFromAFoldOf7On)
{
    EXPECT_EQ(documentPicture(0, {10, 10, 28, 28}).at(13, 12), kWhite);
    EXPECT_NEAR(qRed(documentPicture(0, {10, 10, 28.5, 28.5}).at(13, 12)), 231, 3);
}

TEST_P(BoxPainting, AFoldIsNeverLargerThan30Points)
{
    // Inside from (12, 12), 400 by 400: the cut runs from (382, 12) to (412, 42).
    const auto picture = documentPicture(0, {10, 10, 404, 404});
    EXPECT_NE(picture.at(379, 12), kBackground);
    EXPECT_EQ(picture.at(384, 12), kBackground);
    EXPECT_EQ(picture.at(411, 39), kBackground);
    EXPECT_EQ(picture.at(411, 43), picture.at(60, 43));
}

TEST_P(BoxPainting, ASelectedDocumentIsBlueWithAWhiteLabel)
{
    m_document->setSelected(true);
    const auto picture = documentPicture(0, {10, 10, 60, 30});
    EXPECT_EQ(picture.at(13, 36), kSelectedBlue);
    EXPECT_NEAR(qRed(picture.at(13, 12)), 27, 1);
    EXPECT_GT(picture.countOther({17, 27, 50, 8}, kSelectedBlue), 10);
    for (double x = 17; x < 65; x += 1 / GetParam()) {
        EXPECT_GE(qRed(picture.at(x, 30)), 0x38);
    }
}

TEST_P(BoxPainting, FreeSpaceIsBlackToItsVeryEdgesWithAWhiteName)
{
    const auto freeSpace = makeNode<FreeSpace>({});
    const auto small = picture(freeSpace.get(), 1, {10, 10, 30, 20});
    EXPECT_EQ(small.countOther({10, 10, 30, 20}, kBlack), 0);
    EXPECT_EQ(small.at(9.5, 20), kBackground);
    EXPECT_EQ(small.at(40, 20), kBackground);
    const auto large = picture(freeSpace.get(), 1, {10, 10, 100, 50});
    EXPECT_GT(large.countOther({15, 30, 90, 16}, kBlack), 20);
}

TEST_P(BoxPainting, UnaccountedSpaceIsGreyWithABlackName)
{
    const auto unknown = makeNode<Unknown>({});
    const auto timeMachine = makeNode<TimeMachine>({});
    for (File* node : std::initializer_list<File*>{unknown.get(), timeMachine.get()}) {
        const auto picture = BoxPainting::picture(node, 1, {10, 10, 100, 50});
        EXPECT_EQ(picture.at(11, 11), kUnaccountedGrey);
        EXPECT_EQ(picture.at(108.5, 58.5), kUnaccountedGrey);
        EXPECT_EQ(picture.at(10.5, 30), kBackground);
        EXPECT_EQ(picture.at(109, 30), kBackground);
        EXPECT_GT(picture.countOther({16, 30, 88, 16}, kUnaccountedGrey), 20);
        for (double x = 16; x < 104; x += 1 / GetParam()) {
            EXPECT_LE(qRed(picture.at(x, 36)), 0x99);
        }
    }
}

TEST_P(BoxPainting, OtherNodesAndEmptyItemsAreNotPainted)
{
    EXPECT_EQ(picture(nullptr, 0, {10, 10, 50, 50}).countOther({0, 0, 80, 80}, kBackground), 0);
}

TEST_P(BoxPainting, AGroupOfTheTopLevelHasTenColumnsAndThreeRows)
{
    // Inside from (12, 12), 96 by 26.
    const auto picture = groupPicture(0, {10, 10, 100, 30});
    const QColor color = branchPaletteColor(3);
    EXPECT_EQ(picture.runsAcross({12, 16, 96, 1}, highlightWithLevel(color, 0.15).rgb()), 9);
    EXPECT_EQ(picture.runsDown({16, 12, 1, 26}, shadowWithLevel(color, 0.6).rgb()), 2);
    EXPECT_EQ(picture.runsDown({16, 12, 1, 26}, highlightWithLevel(color, 0.65).rgb()), 2);
}

TEST_P(BoxPainting, AGroupsGroovesAreDarkAndLighterBelow)
{
    // Rows of 26 / 3 points: the first groove is at 12 + ceil(8.67).
    const auto picture = groupPicture(0, {10, 10, 100, 30});
    const QColor color = branchPaletteColor(3);
    EXPECT_EQ(picture.at(16, 19.5), kTeal);
    EXPECT_EQ(picture.at(16, 20), shadowWithLevel(color, 0.6).rgb());
    EXPECT_EQ(picture.at(16, 21), highlightWithLevel(color, 0.65).rgb());
    EXPECT_EQ(picture.at(16, 22), kTeal);
    // Lines keep 1.5 points from the sides.
    EXPECT_EQ(picture.at(12.5, 20), kTeal);
}

TEST_P(BoxPainting, AGroupOfTheTopLevelHasNoOutline)
{
    const auto picture = groupPicture(0, {10, 10, 100, 30});
    EXPECT_EQ(picture.at(50, 12), kTeal);
    EXPECT_EQ(picture.at(12, 16), kTeal);
    EXPECT_EQ(picture.at(50, 11.5), kBackground);
}

TEST_P(BoxPainting, AGroupBelowTheTopLevelHasADarkOutline)
{
    const QColor color = boxColor(*m_folder, 1);
    const auto picture = groupPicture(1, {10, 10, 100, 30});
    EXPECT_EQ(picture.at(55, 11), shadowWithLevel(color, 0.6).rgb());
    EXPECT_EQ(picture.at(11, 16), shadowWithLevel(color, 0.6).rgb());
    EXPECT_EQ(picture.at(55, 12.5), color.rgb());
    EXPECT_EQ(picture.at(55, 10.5), kBackground);
}

TEST_P(BoxPainting, ANarrowGroupHasOneColumnAndFiveRows)
{
    // Inside from (11, 11), 4 by 38: lines go from 12.5 to 13.5.
    const auto narrow = groupPicture(1, {10, 10, 6, 40});
    const QColor color = boxColor(*m_folder, 1);
    const auto isLight = [&](double y) { return qRed(narrow.at(12.5, y)) > color.red() + 10; };
    int grooves = 0;
    for (double y = 13; y < 47; y += 1 / GetParam()) {
        grooves += isLight(y) && !isLight(y - 1 / GetParam()) ? 1 : 0;
    }
    EXPECT_EQ(grooves, 4);
    EXPECT_EQ(narrow.runsAcross({12, 14, 2, 1}, highlightWithLevel(color, 0.15).rgb()), 0);
}

TEST_P(BoxPainting, AGroupsGridIsCrispBelowTheTopLevelToo)
{
    // Inside from (11, 11), 98 by 28: 4 rows of 7 points, 10 columns of 9.8.
    const auto picture = groupPicture(1, {10, 10, 100, 30});
    const QColor color = boxColor(*m_folder, 1);
    EXPECT_EQ(picture.at(15, 16.5), color.rgb());
    EXPECT_EQ(picture.at(15, 17), shadowWithLevel(color, 0.6).rgb());
    EXPECT_EQ(picture.at(15, 18), highlightWithLevel(color, 0.65).rgb());
    EXPECT_EQ(picture.at(15, 19), color.rgb());
    EXPECT_EQ(picture.at(19.5, 14), color.rgb());
    EXPECT_EQ(picture.at(20, 14), highlightWithLevel(color, 0.15).rgb());
    EXPECT_EQ(picture.at(21, 14), color.rgb());
}

TEST_P(BoxPainting, ASelectedNodeDoesNotDarkenItsGroup)
{
    m_folder->setSelected(true);
    EXPECT_EQ(groupPicture(0, {10, 10, 100, 30}).at(16, 16), kTeal);
}

TEST_P(BoxPainting, LaterBoxesLieOverEarlierOnes)
{
    const auto unknown = makeNode<Unknown>({});
    test::LevelPicture picture(0, GetParam());
    picture.add(m_folder.get(), {10, 10, 30, 20});
    picture.add(unknown.get(), {20, 10, 10, 18});
    picture.paint();
    EXPECT_EQ(picture.at(25, 20), kUnaccountedGrey);
    EXPECT_EQ(picture.at(15, 20), kTeal);
}

} // namespace
} // namespace tessera
