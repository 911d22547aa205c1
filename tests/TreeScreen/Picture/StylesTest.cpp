// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/Styles.h"

#include <QFontDatabase>

#include <gtest/gtest.h>

#include <array>

namespace tessera {
namespace {

const std::array kSets{
    &Styles::textAttributes,
    &Styles::selectedTextAttributes,
    &Styles::folderTextAttributes,
    &Styles::selectedFolderTextAttributes,
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

} // namespace
} // namespace tessera
