// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/AppleDouble.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera {
namespace {

using namespace std::string_literals;

const std::string kHeader = "\x00\x05\x16\x07\x00\x02\x00\x00Mac OS X        \x00\x02"s;
const std::string kFinderInfo = "0123456789abcdef0123456789ABCDEF";

std::string bytesOf(const std::vector<ExtendedAttribute>& attributes)
{
    return AppleDouble(attributes).bytes();
}

TEST(AppleDouble, WithoutAttributesHoldsEmptyPlaces)
{
    EXPECT_EQ(
        bytesOf({}),
        kHeader + "\x00\x00\x00\x09\x00\x00\x00\x32\x00\x00\x00\x20"s
            + "\x00\x00\x00\x02\x00\x00\x00\x52\x00\x00\x00\x00"s + std::string(32, '\0'));
}

TEST(AppleDouble, FinderInfoHasAPlaceOfItsOwn)
{
    const std::string bytes = bytesOf({{"com.apple.FinderInfo", kFinderInfo}});
    EXPECT_EQ(bytes.substr(50), kFinderInfo);
}

TEST(AppleDouble, TheResourceForkComesLast)
{
    const std::string bytes = bytesOf({{"com.apple.ResourceFork", "fork"}});
    EXPECT_EQ(bytes.substr(38, 12), "\x00\x00\x00\x02\x00\x00\x00\x52\x00\x00\x00\x04"s);
    EXPECT_EQ(bytes.substr(82), "fork");
}

TEST(AppleDouble, OtherAttributesFollowInATable)
{
    const std::string bytes = bytesOf({{"comment", "hi"}});
    EXPECT_EQ(bytes.substr(26, 12), "\x00\x00\x00\x09\x00\x00\x00\x32\x00\x00\x00\x5C"s);
    EXPECT_EQ(
        bytes.substr(82),
        "\x00\x00"
        "ATTR\x00\x00\x00\x00\x00\x00\x00\x8E\x00\x00\x00\x8C\x00\x00\x00\x02"s
            + std::string(12, '\0') + "\x00\x00\x00\x01"s
            + "\x00\x00\x00\x8C\x00\x00\x00\x02\x00\x00\x08"
              "comment\x00\x00hi"s);
}

TEST(AppleDouble, RecordsOfTheTableAreAligned)
{
    // 11 bytes and "a\0" take 16; so do 11 bytes and "four\0".
    const std::string bytes = bytesOf({{"a", "1"}, {"four", "22"}});
    EXPECT_EQ(bytes.substr(120, 11), "\x00\x00\x00\x98\x00\x00\x00\x01\x00\x00\x02"s);
    EXPECT_EQ(bytes.substr(136, 11), "\x00\x00\x00\x99\x00\x00\x00\x02\x00\x00\x05"s);
    EXPECT_EQ(bytes.substr(152), "122");
}

TEST(AppleDouble, FinderInfoOfAnotherSizeIsAnAttributeLikeOthers)
{
    const std::string bytes = bytesOf({{"com.apple.FinderInfo", "short"}});
    EXPECT_EQ(bytes.substr(50, 32), std::string(32, '\0'));
    EXPECT_TRUE(bytes.ends_with("short"));
}

TEST(AppleDouble, TheTableStandsBetweenFinderInfoAndResourceFork)
{
    const std::string bytes = bytesOf(
        {{"com.apple.ResourceFork", "fork"}, {"a", "1"}, {"com.apple.FinderInfo", kFinderInfo}});
    EXPECT_EQ(bytes.substr(50, 32), kFinderInfo);
    EXPECT_EQ(bytes.substr(136), "1fork");
}

TEST(AppleDouble, ValuesOf64KilobytesFit)
{
    const std::string value(65536, 'v');
    const std::string bytes = bytesOf({{"large", value}, {"larger", value}});
    EXPECT_EQ(bytes.substr(124, 4), "\x00\x01\x00\x00"s);
    EXPECT_TRUE(bytes.ends_with(value + value));
}

TEST(AppleDouble, LiesUnderItsOwnFolderBesideTheItem)
{
    EXPECT_EQ(AppleDouble::pathFor("file"), "__MACOSX/._file");
    EXPECT_EQ(AppleDouble::pathFor("X/sub/file"), "__MACOSX/X/sub/._file");
}

TEST(AppleDouble, ANameOf253BytesIsKept)
{
    const std::string name(253, 'n');
    EXPECT_EQ(AppleDouble::pathFor("X/" + name), "__MACOSX/X/._" + name);
}

TEST(AppleDouble, ALongerNameIsShortenedToWhatADiskTakes)
{
    const std::string path = AppleDouble::pathFor("X/" + std::string(254, 'n'));
    EXPECT_EQ(path.size(), std::string("__MACOSX/X/").size() + 255);
    EXPECT_EQ(path.find("__MACOSX/X/._nnn"), 0U);
}

TEST(AppleDouble, LongNamesThatBeginAlikeHaveDifferentPlaces)
{
    const std::string beginning(254, 'n');
    EXPECT_NE(AppleDouble::pathFor(beginning + 'a'), AppleDouble::pathFor(beginning + 'b'));
}

} // namespace
} // namespace tessera
