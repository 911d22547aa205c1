// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/RasterArguments.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(RasterArguments, NameKindAndLimit)
{
    EXPECT_EQ(
        rasterArguments({RasterRequest::Kind::Picture, {800, 600}}),
        (std::vector<std::string>{"picture", "800", "600"}));
    EXPECT_EQ(
        rasterArguments({RasterRequest::Kind::Pages, {640, 2560}}),
        (std::vector<std::string>{"pages", "640", "2560"}));
}

TEST(RasterArguments, AreReadAsTheyAreWritten)
{
    const std::vector<const char*> words{"pages", "1", "32768"};
    const auto request = parseRasterArguments(words);

    ASSERT_TRUE(request);
    EXPECT_EQ(request->kind, RasterRequest::Kind::Pages);
    EXPECT_EQ(request->limit, (PixelSize{1, 32768}));
}

TEST(RasterArguments, NothingElseIsRead)
{
    for (const std::vector<const char*>& words : std::vector<std::vector<const char*>>{
             {},
             {"picture"},
             {"picture", "1"},
             {"picture", "1", "1", "1"},
             {"movie", "1", "1"},
             {"", "1", "1"},
             {"picture", "0", "1"},
             {"picture", "1", "-1"},
             {"picture", "1", "32769"},
             {"picture", "1", "99999999999"},
             {"picture", "1x", "1"},
             {"picture", "", "1"},
             {"picture", " 1", "1"},
             {"picture", "+1", "1"}}) {
        EXPECT_FALSE(parseRasterArguments(words)) << words.size();
    }
}

} // namespace
} // namespace tessera
