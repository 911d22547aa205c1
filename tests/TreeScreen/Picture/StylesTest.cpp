// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/Styles.h"

#include "Model/Folder.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "support/Contrast.h"

#include <QFontDatabase>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace tessera {
namespace {

const std::array kSets{
    &Styles::textAttributes,
    &Styles::selectedTextAttributes,
    &Styles::folderTextAttributes,
    &Styles::selectedFolderTextAttributes,
    &Styles::folderSizeAttributes,
    &Styles::selectedFolderSizeAttributes,
    &Styles::folderShadowTextAttributes};

TEST(Styles, GiveTheSameObjectEveryTime)
{
    for (const auto& attributes : kSets) {
        EXPECT_EQ(&attributes(), &attributes());
    }
}

TEST(Styles, UseTheDesktopsFontAtTenPixelsAndCutAtTheTail)
{
    const QString family = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    for (const auto& attributes : kSets) {
        EXPECT_EQ(attributes().font.family(), family);
        EXPECT_EQ(attributes().font.pixelSize(), 10);
        EXPECT_EQ(attributes().elideMode, Qt::ElideRight);
    }
}

TEST(Styles, CentreDocumentLabelsAndStartFolderNamesAtTheLeft)
{
    EXPECT_EQ(Styles::textAttributes().alignment, Qt::AlignHCenter);
    EXPECT_EQ(Styles::selectedTextAttributes().alignment, Qt::AlignHCenter);
    EXPECT_EQ(Styles::folderTextAttributes().alignment, Qt::AlignLeft);
    EXPECT_EQ(Styles::selectedFolderTextAttributes().alignment, Qt::AlignLeft);
    EXPECT_EQ(Styles::folderSizeAttributes().alignment, Qt::AlignLeft);
    EXPECT_EQ(Styles::selectedFolderSizeAttributes().alignment, Qt::AlignLeft);
    EXPECT_EQ(Styles::folderShadowTextAttributes().alignment, Qt::AlignLeft);
}

TEST(Styles, WriteBlackOrWhiteAndTheShadowInFaintWhite)
{
    EXPECT_EQ(Styles::textAttributes().foreground, QColor(Qt::black));
    EXPECT_EQ(Styles::selectedTextAttributes().foreground, QColor(Qt::white));
    EXPECT_EQ(Styles::folderTextAttributes().foreground, QColor(Qt::black));
    EXPECT_EQ(Styles::selectedFolderTextAttributes().foreground, QColor(Qt::white));
    EXPECT_EQ(Styles::folderShadowTextAttributes().foreground, QColor(255, 255, 255, 0x33));
}

/// Of an ink that the ground shines through.
double contrast(const QColor& ink, const QColor& ground)
{
    const auto mixed = [&ink](float over, float under) {
        return over * ink.alphaF() + under * (1 - ink.alphaF());
    };
    const QColor written = QColor::fromRgbF(
        mixed(ink.redF(), ground.redF()),
        mixed(ink.greenF(), ground.greenF()),
        mixed(ink.blueF(), ground.blueF()));
    return test::contrast(written, ground);
}

TEST(Styles, SizesAreQuieterThanNamesAndStillLegibleOnEveryBox)
{
    for (std::uint8_t hue = 1; hue <= 6; ++hue) {
        const auto folder = makeNode<Folder>("docs");
        folder->setHue(hue);
        const QColor ground = folderBoxColor(*folder, 0);
        const double size = contrast(Styles::folderSizeAttributes().foreground, ground);
        EXPECT_GE(size, test::kLegible) << int{hue};
        EXPECT_LT(size, contrast(Styles::folderTextAttributes().foreground, ground) - 1);
        folder->setSelected(true);
        const QColor chosen = folderBoxColor(*folder, 0);
        const double chosenSize
            = contrast(Styles::selectedFolderSizeAttributes().foreground, chosen);
        EXPECT_GE(chosenSize, test::kLegible) << int{hue};
        EXPECT_LT(chosenSize, contrast(Styles::selectedFolderTextAttributes().foreground, chosen));
    }
}

} // namespace
} // namespace tessera
