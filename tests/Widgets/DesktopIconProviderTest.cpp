// SPDX-License-Identifier: MIT
#include "Widgets/DesktopIconProvider.h"

#include "Model/Document.h"
#include "Model/Volume.h"
#include "Widgets/Images.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {

namespace {

class DesktopIconProviderTest : public testing::Test {
protected:
    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/anna", "docs/ ( a.pdf:1 b.pdf:2 ) song.mp3:3 Makefile:4");
    DesktopIconProvider icons;
};

} // namespace

TEST_F(DesktopIconProviderTest, FoldersAndFilesHaveIconsOfTheAskedSizeWithoutATheme)
{
    const QPixmap folder = icons.icon(test::at(*tree, "docs"), 32, 1);
    const QPixmap file = icons.icon(test::at(*tree, "song.mp3"), 32, 1);

    EXPECT_EQ(folder.size(), QSize(32, 32));
    EXPECT_FALSE(file.isNull());
    EXPECT_NE(folder.toImage(), file.toImage());
}

TEST_F(DesktopIconProviderTest, WithoutAThemeTheProgramsOwnPicturesAreShown)
{
    const auto own = [](std::string_view name) { return imageNamed(name).pixmap({32, 32}, 1); };

    EXPECT_EQ(icons.icon(test::at(*tree, "docs"), 32, 1).toImage(), own("folder").toImage());
    EXPECT_EQ(icons.icon(test::at(*tree, "song.mp3"), 32, 1).toImage(), own("document").toImage());
}

TEST_F(DesktopIconProviderTest, APictureIsKeptForAllFilesOfItsType)
{
    const QPixmap one = icons.icon(test::at(*tree, "docs/a.pdf"), 32, 1);
    const QPixmap other = icons.icon(test::at(*tree, "docs/b.pdf"), 32, 1);

    EXPECT_EQ(one.cacheKey(), other.cacheKey());
}

TEST_F(DesktopIconProviderTest, APictureHasTheResolutionOfTheScreen)
{
    const QPixmap icon = icons.icon(test::at(*tree, "docs"), 32, 2);

    EXPECT_EQ(icon.devicePixelRatio(), 2);
    EXPECT_EQ(icon.deviceIndependentSize(), QSizeF(32, 32));
}

TEST_F(DesktopIconProviderTest, NamesThatAreNoTextHaveIconsToo)
{
    const auto document = makeNode<Document>("\xff\xfe\n");

    EXPECT_FALSE(icons.icon(*document, 32, 1).isNull());
}

TEST_F(DesktopIconProviderTest, WhatIsInNoTreeHasTheIconOfItsKind)
{
    const QPixmap folder = icons.iconForUrl(Url("/home/anna/new", true), 32, 1);
    const QPixmap file = icons.iconForUrl(Url("/home/anna/new.mp3", false), 32, 1);

    EXPECT_EQ(folder.cacheKey(), icons.icon(test::at(*tree, "docs"), 32, 1).cacheKey());
    EXPECT_EQ(file.cacheKey(), icons.icon(test::at(*tree, "song.mp3"), 32, 1).cacheKey());
}

TEST_F(DesktopIconProviderTest, VolumesHaveIconsToo)
{
    const auto volume = makeNode<Volume>("/");

    EXPECT_FALSE(icons.icon(*volume, 32, 1).isNull());
}

} // namespace tessera
