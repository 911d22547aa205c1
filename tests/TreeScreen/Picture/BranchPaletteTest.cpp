// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/BranchPalette.h"

#include "Widgets/ColorHelper.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

/// Blue at the top, and four folders inside each other.
class PaletteOfATree : public testing::Test {
protected:
    void SetUp() override { test::at(*m_top, "a").setHue(1); }

    const File& at(const char* path) { return test::at(*m_top, path); }

    std::unique_ptr<TopFolder> m_top = test::makeTree("/disk", "a/ ( b/ ( c/ ( d/ ( e:5 ) ) ) )");
    QColor m_blue = colorWithHex(0x6F9CDA);
};

TEST(BranchPalette, HasSevenColours)
{
    // NOLINTNEXTLINE(modernize-avoid-c-arrays): a plain table
    const std::uint32_t expected[]
        = {0xCCCCCC, 0x6F9CDA, 0x54AC61, 0x5AA89F, 0xC09054, 0xEB7877, 0xA785F3};
    for (std::uint8_t hue = 0; hue < 7; ++hue) {
        EXPECT_EQ(branchPaletteColor(hue), colorWithHex(expected[hue]));
    }
}

TEST(BranchPalette, TheTopLevelHasThePlainColours)
{
    const auto node = makeNode<Folder>("a");
    node->setHue(3);
    EXPECT_EQ(folderBoxColor(*node, 0), colorWithHex(0x5AA89F));
}

TEST(BranchPalette, ANodeWithoutASlotIsGrey)
{
    EXPECT_EQ(folderBoxColor(*makeNode<Folder>("a"), 0), colorWithHex(0xCCCCCC));
}

TEST(BranchPalette, ASelectedFolderIsDarkerByThreeTenths)
{
    const auto node = makeNode<Folder>("a");
    node->setHue(3);
    node->setSelected(true);
    EXPECT_NEAR(folderBoxColor(*node, 0).valueF(), 0xA8 / 255.0 - 0.3, 1e-4);
}

TEST(BranchPalette, SelectionDoesNotDarkenTheColourOfAGroup)
{
    const auto node = makeNode<Folder>("a");
    node->setHue(3);
    node->setSelected(true);
    EXPECT_EQ(boxColor(*node, 0), colorWithHex(0x5AA89F));
}

TEST_F(PaletteOfATree, GetsPalerFromLevelToLevelUpToTheThird)
{
    EXPECT_EQ(
        boxColor(at("a/b"), 1),
        withBrightnessAdded(m_blue, static_cast<double>(static_cast<float>(1.0 / 15))));
    EXPECT_EQ(
        boxColor(at("a/b/c"), 2),
        withBrightnessAdded(m_blue, static_cast<double>(static_cast<float>(2.0 / 15))));
    EXPECT_EQ(boxColor(at("a/b/c/d"), 3), withBrightnessAdded(m_blue, 0.2));
}

TEST_F(PaletteOfATree, EveryLevelFromTheThirdOnIsAlike)
{
    // The brightness would be 0xDA / 255 + 0.2, which is more than there is.
    test::at(*m_top, "a").setHue(2);
    test::at(*m_top, "a/b/c/d/e").setHue(5);
    EXPECT_NEAR(boxColor(at("a/b/c/d/e"), 4).valueF(), 0xAC / 255.0 + 0.2, 1e-4);
    EXPECT_EQ(boxColor(at("a/b/c/d/e"), 4), boxColor(at("a/b/c/d"), 3));
}

TEST_F(PaletteOfATree, AFolderFourLevelsDownTakesTheColourOfItsTopLevelAncestor)
{
    test::at(*m_top, "a/b/c/d/e").setHue(4);
    EXPECT_EQ(boxColor(at("a/b/c/d/e"), 4), withBrightnessAdded(m_blue, 0.2));
}

TEST_F(PaletteOfATree, AnAncestorBeyondTheRootIsTheRoot)
{
    m_top->setHue(6);
    EXPECT_EQ(boxColor(at("a"), 9), withBrightnessAdded(colorWithHex(0xA785F3), 0.2));
}

} // namespace
} // namespace tessera
