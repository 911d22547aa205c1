// SPDX-License-Identifier: MIT
#include "Compress/ArchivePaths.h"

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

TEST(ArchivePath, IsTheItemsWithAnEnding)
{
    EXPECT_EQ(archivePath("/data/X", 1), "/data/X.zip");
}

TEST(ArchivePath, HasTheNumberFromTheSecondOn)
{
    EXPECT_EQ(archivePath("/data/X", 2), "/data/X 2.zip");
}

TEST(ArchivePath, ANameOf251BytesIsKept)
{
    const std::string name(251, 'n');
    EXPECT_EQ(archivePath("/data/" + name, 1), "/data/" + name + ".zip");
}

TEST(ArchivePath, ALongerNameIsShortened)
{
    EXPECT_EQ(
        archivePath("/data/" + std::string(252, 'n'), 1),
        "/data/" + std::string(251, 'n') + ".zip");
}

TEST(ArchivePath, ANumberTakesItsRoomFromTheName)
{
    EXPECT_EQ(
        archivePath("/data/" + std::string(255, 'n'), 12),
        "/data/" + std::string(248, 'n') + " 12.zip");
}

TEST(ArchivePath, NoCharacterIsCutApart)
{
    std::string name;
    for (int i = 0; i < 84; ++i) {
        name += "\u6587"; // three bytes
    }
    EXPECT_EQ(archivePath("/" + name, 1), "/" + name.substr(0, 249) + ".zip");
}

TEST(PartPath, IsTheArchivesWithAnEnding)
{
    EXPECT_EQ(partPath("/data/X.zip"), "/data/X.zip.part");
}

TEST(PartName, A250BytesLongNameIsKept)
{
    const std::string name(250, 'n');
    EXPECT_EQ(partName(name), name + ".part");
}

TEST(PartName, ALongerNameIsShortenedToWhatADiskTakes)
{
    EXPECT_EQ(partName(std::string(251, 'n')).size(), 255U);
}

TEST(PartName, LongNamesThatBeginAlikeHaveDifferentParts)
{
    const std::string beginning(249, 'n');
    EXPECT_NE(partName(beginning + " 2.zip"), partName(beginning + " 3.zip"));
}

} // namespace
} // namespace tessera
