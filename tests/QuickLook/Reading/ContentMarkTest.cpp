// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/ContentMark.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace tessera {
namespace {

using namespace std::string_literals;

std::string afterSpaces(std::size_t spaces, std::string_view rest)
{
    std::string bytes(spaces, ' ');
    return bytes.append(rest);
}

TEST(ContentMark, KnowsThePicturesByTheirFirstBytes)
{
    for (const std::string& bytes :
         {"\x89PNG\r\n\x1A\n"s,
          "\xFF\xD8\xFF\xE0"s,
          "GIF89a"s,
          "GIF87a"s,
          "BM\x36\x00"s,
          "\0\0\1\0\1\0"s,
          "\0\0\2\0\1\0"s,
          "icns\0\0"s,
          "II*\0"s,
          "MM\0*"s,
          "II+\0"s,
          "MM\0+"s,
          "RIFF\x10\0\0\0WEBPVP8 "s,
          "\0\0\0\x1C"
          "ftypavif"s,
          "\0\0\0\x18"
          "ftypheic"s,
          "\0\0\0\x0CjP  \r\n"s,
          "\xFF\x4F\xFF\x51\0"s,
          "\0\0\0\x0CJXL "s,
          "\xFF\x0A\x01"s,
          "qoif\0\0"s,
          "P1\n2 2"s,
          "P6 2 2"s,
          "P3\t"s}) {
        EXPECT_EQ(contentMark(bytes), ContentMark::Picture) << bytes;
    }
}

TEST(ContentMark, ADrawingThatMayNameOtherFilesIsNoPicture)
{
    EXPECT_EQ(contentMark("<svg xmlns=\"http://www.w3.org/2000/svg\"/>"), ContentMark::None);
}

TEST(ContentMark, APdfMayHaveOtherBytesBeforeItsMark)
{
    EXPECT_EQ(contentMark("%PDF-1.7"), ContentMark::Pages);
    EXPECT_EQ(contentMark(afterSpaces(1019, "%PDF-1.7")), ContentMark::Pages);
    EXPECT_EQ(contentMark(afterSpaces(1020, "%PDF-1.7")), ContentMark::None);
}

TEST(ContentMark, APictureThatMentionsAPdfIsAPicture)
{
    EXPECT_EQ(contentMark("\xFF\xD8\xFF\xE1 %PDF-1.7"), ContentMark::Picture);
}

TEST(ContentMark, OtherFilesAreForNoDecoder)
{
    for (const std::string& bytes :
         {""s,
          "P"s,
          "P1"s,
          "P7\n"s,
          "P0\n"s,
          "P10"s,
          "GIF"s,
          "RIFF\x10\0\0\0WAVE"s,
          "text"s,
          "\x7F"
          "ELF"s,
          "RIFF"s,
          "ftyp"s}) {
        EXPECT_EQ(contentMark(bytes), ContentMark::None) << bytes;
    }
}

} // namespace
} // namespace tessera
