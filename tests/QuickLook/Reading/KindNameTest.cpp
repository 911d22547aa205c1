// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/KindName.h"

#include "QuickLook/Reading/SampleFiles.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

QString kind(const char* path, const std::string& bytes, ContentShown shown)
{
    return kindNameOfContent(path, QByteArray::fromStdString(bytes), shown);
}

TEST(KindName, ANameTellsATextMoreClosely)
{
    EXPECT_EQ(
        kind("/a.cpp", "int main() {}\n", ContentShown::Text), QStringLiteral("C++ source code"));
}

TEST(KindName, ATextThatIsCalledAPictureIsAText)
{
    EXPECT_EQ(kind("/a.png", "hello\n", ContentShown::Text), QStringLiteral("plain text document"));
}

TEST(KindName, ATextThatBeginsLikeAPictureIsAText)
{
    EXPECT_EQ(
        kind("/a", "BMW builds cars", ContentShown::Text), QStringLiteral("plain text document"));
}

TEST(KindName, APictureIsWhatItsBytesAre)
{
    const std::string bytes = test::imageFile({2, 2}, "png");

    EXPECT_EQ(kind("/a.jpg", bytes, ContentShown::Picture), QStringLiteral("PNG image"));
    EXPECT_EQ(kind("/a.txt", bytes, ContentShown::Picture), QStringLiteral("PNG image"));
    EXPECT_EQ(kind("/a", bytes, ContentShown::Picture), QStringLiteral("PNG image"));
}

TEST(KindName, PagesAreOfAPdfWhateverTheName)
{
    EXPECT_EQ(
        kind("/holiday.jpg", "%PDF-1.4", ContentShown::Pages), QStringLiteral("PDF document"));
    EXPECT_EQ(
        kind("/holiday.jpg", "junk %PDF-1.4", ContentShown::Pages), QStringLiteral("PDF document"));
}

TEST(KindName, AnArchiveThatIsCalledAPictureIsNoPicture)
{
    const std::string zip = std::string("PK\x03\x04\x14\0\0\0\0\0", 10);

    EXPECT_EQ(kind("/a.png", zip, ContentShown::Nothing), QStringLiteral("Zip archive"));
}

TEST(KindName, ANameTellsAnArchiveMoreClosely)
{
    const std::string zip = std::string("PK\x03\x04\x14\0\0\0\0\0", 10);

    EXPECT_EQ(kind("/a.jar", zip, ContentShown::Nothing), QStringLiteral("Java archive"));
}

TEST(KindName, WhatNobodyKnowsIsWhatTheNameSays)
{
    EXPECT_EQ(
        kind("/a.iso", std::string("\x01\x02\xFF\0\x03", 5), ContentShown::Nothing),
        kindNameOfItem("/a.iso", FileKind::Regular));
}

TEST(KindName, AnEmptyFileIsWhatTheNameSays)
{
    EXPECT_EQ(kind("/a.txt", "", ContentShown::Nothing), QStringLiteral("plain text document"));
}

TEST(KindName, AFolderIsNoneOfWhatItsNameSays)
{
    EXPECT_EQ(kindNameOfItem("/a.png", FileKind::Folder), QStringLiteral("folder"));
}

} // namespace
} // namespace tessera
