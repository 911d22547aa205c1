// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/KnownPlaces.h"

#include "Base/Url.h"
#include "Widgets/Images.h"
#include "support/Fakes/FakePlaces.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tessera {
namespace {

QImage imageOf(const QIcon& icon)
{
    return icon.pixmap(QSize(64, 64)).toImage();
}

/// The icons are the program's own here, since tests run without a desktop's theme.
class KnownPlacesTest : public testing::Test {
protected:
    PlaceLook look(const char* path) const { return places.look(Url(path, true)); }

    test::FakeMountedVolumes volumes;
    KnownPlaces places{
        volumes,
        {{LocationKind::Music, {"/home/eve/Music", "/home/eve/Musik"}},
         {LocationKind::Trash, {"/home/eve/.Trash", "/home/eve/.local/share/Trash/files"}}}};
};

TEST_F(KnownPlacesTest, ADiskLooksLikeADisk)
{
    volumes.list
        = {{Url("/", true), MountedVolume::Kind::Disk},
           {Url("/media/eve/stick", true), MountedVolume::Kind::Removable}};
    EXPECT_EQ(look("/").name, QStringLiteral("File System"));
    EXPECT_EQ(imageOf(look("/").icon), imageOf(imageNamed("disk")));
    EXPECT_EQ(look("/media/eve/stick").name, QStringLiteral("stick"));
    EXPECT_EQ(imageOf(look("/media/eve/stick").icon), imageOf(imageNamed("disk-removable")));
}

TEST_F(KnownPlacesTest, ALocationIsKnownInEachOfItsPlaces)
{
    EXPECT_EQ(imageOf(look("/home/eve/Music").icon), imageOf(imageNamed("folder-music")));
    EXPECT_EQ(imageOf(look("/home/eve/Musik").icon), imageOf(imageNamed("folder-music")));
    EXPECT_EQ(look("/home/eve/Musik").name, QStringLiteral("Musik"));
    EXPECT_EQ(look("/home/eve/.local/share/Trash/files").name, QStringLiteral("Trash"));
}

TEST_F(KnownPlacesTest, AnyOtherFolderIsPlainAndGoesByItsName)
{
    EXPECT_EQ(imageOf(look("/home/eve/some\xFF").icon), imageOf(imageNamed("folder")));
    EXPECT_EQ(look("/home/eve/some\xFF").name, QStringLiteral("some\uFFFD"));
}

} // namespace
} // namespace tessera
