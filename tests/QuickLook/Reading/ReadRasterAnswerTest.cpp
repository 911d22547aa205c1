// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/ReadRasterAnswer.h"

#include "QuickLook/Reading/RasterFrame.h"
#include "QuickLook/Reading/ReadFrom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <string>
#include <vector>

namespace tessera {
namespace {

using Kind = RasterFrame::Kind;

constexpr RasterRequest kPicture{RasterRequest::Kind::Picture, {10, 8}};
constexpr RasterRequest kPages{RasterRequest::Kind::Pages, {4, 16}};

std::string frame(
    Kind kind, std::int32_t width = 0, std::int32_t height = 0, std::int32_t count = 0)
{
    const auto bytes = std::bit_cast<std::array<char, 16>>(RasterFrame{kind, width, height, count});
    return {bytes.begin(), bytes.end()};
}

std::string raster(int width, int height)
{
    return frame(Kind::OpaqueRaster, width, height)
        + std::string(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4, 'p');
}

std::string pictureSize(int width, int height)
{
    return frame(Kind::PictureSize, width, height);
}

std::string pageCount(int count)
{
    return frame(Kind::PageCount, 0, 0, count);
}

const std::string kEnd = frame(Kind::End);

RasterAnswer read(const RasterRequest& request, const std::string& bytes)
{
    return readRasterAnswer(request, test::readFrom(bytes));
}

/// Nothing of what was said is believed.
bool isRefused(const RasterRequest& request, const std::string& bytes)
{
    const RasterAnswer answer = read(request, bytes);
    return answer.outcome == RasterOutcome::Refused && answer.rasters.empty() && !answer.pictureSize
        && answer.pageCount == 0;
}

TEST(ReadRasterAnswer, APictureComesWithItsOwnSize)
{
    const RasterAnswer answer = read(kPicture, pictureSize(100, 80) + raster(10, 8) + kEnd);

    EXPECT_EQ(answer.outcome, RasterOutcome::Whole);
    EXPECT_EQ(answer.pictureSize, (PixelSize{100, 80}));
    ASSERT_EQ(answer.rasters.size(), 1U);
    EXPECT_EQ(answer.rasters.front().size, (PixelSize{10, 8}));
    EXPECT_TRUE(answer.rasters.front().isOpaque);
    EXPECT_EQ(answer.rasters.front().pixels, std::vector<char>(320, 'p'));
}

TEST(ReadRasterAnswer, ARasterMayHaveAlpha)
{
    const std::string bytes
        = pictureSize(1, 1) + frame(Kind::Raster, 1, 1) + std::string(4, 'p') + kEnd;

    EXPECT_FALSE(read(kPicture, bytes).rasters.at(0).isOpaque);
}

TEST(ReadRasterAnswer, PagesComeWithTheirNumber)
{
    const RasterAnswer answer = read(kPages, pageCount(12) + raster(4, 5) + raster(4, 16) + kEnd);

    EXPECT_EQ(answer.outcome, RasterOutcome::Whole);
    EXPECT_EQ(answer.pageCount, 12);
    ASSERT_EQ(answer.rasters.size(), 2U);
    EXPECT_EQ(answer.rasters.back().size, (PixelSize{4, 16}));
}

TEST(ReadRasterAnswer, TheEndAloneIsAnAnswer)
{
    EXPECT_EQ(read(kPicture, kEnd).outcome, RasterOutcome::Whole);
}

TEST(ReadRasterAnswer, WhatIsWholeIsKeptWhenTheBytesEndEarly)
{
    const std::string bytes = pageCount(3) + raster(4, 5) + raster(4, 5);
    const RasterAnswer answer = read(kPages, bytes.substr(0, bytes.size() - 1));

    EXPECT_EQ(answer.outcome, RasterOutcome::CutShort);
    EXPECT_EQ(answer.pageCount, 3);
    EXPECT_EQ(answer.rasters.size(), 1U);
}

TEST(ReadRasterAnswer, BytesThatEndInsideAFrameAreCutShort)
{
    EXPECT_EQ(read(kPicture, "").outcome, RasterOutcome::CutShort);
    EXPECT_EQ(read(kPicture, kEnd.substr(1)).outcome, RasterOutcome::CutShort);
}

TEST(ReadRasterAnswer, NoRasterExceedsTheLimit)
{
    const std::string size = pictureSize(100, 100);

    EXPECT_TRUE(isRefused(kPicture, size + raster(11, 8) + kEnd));
    EXPECT_TRUE(isRefused(kPicture, size + raster(10, 9) + kEnd));
    EXPECT_TRUE(isRefused(kPages, pageCount(1) + raster(4, 17) + kEnd));
}

TEST(ReadRasterAnswer, NoPictureIsEnlarged)
{
    EXPECT_EQ(read(kPicture, pictureSize(5, 5) + raster(5, 5) + kEnd).rasters.size(), 1U);
    EXPECT_TRUE(isRefused(kPicture, pictureSize(5, 5) + raster(6, 5) + kEnd));
    EXPECT_TRUE(isRefused(kPicture, pictureSize(5, 5) + raster(5, 6) + kEnd));
}

TEST(ReadRasterAnswer, APageIsAsWideAsAskedFor)
{
    EXPECT_TRUE(isRefused(kPages, pageCount(1) + raster(3, 5) + kEnd));
}

TEST(ReadRasterAnswer, SizesArePositive)
{
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    for (const int side : {0, -1, kLeast}) {
        EXPECT_TRUE(isRefused(kPicture, pictureSize(side, 5) + kEnd)) << side;
        EXPECT_TRUE(isRefused(kPicture, pictureSize(5, side) + kEnd)) << side;
        EXPECT_TRUE(isRefused(kPages, pageCount(side) + kEnd)) << side;
        const std::string size = pictureSize(100, 100);
        const std::string wide = frame(Kind::Raster, side, 5) + kEnd;
        const std::string high = frame(Kind::Raster, 5, side) + kEnd;
        EXPECT_TRUE(isRefused(kPicture, size + wide)) << side;
        EXPECT_TRUE(isRefused(kPicture, size + high)) << side;
    }
}

TEST(ReadRasterAnswer, HugeSizesAreNotMultiplied)
{
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    const RasterRequest all{RasterRequest::Kind::Picture, {kMost, kMost}};

    EXPECT_TRUE(
        isRefused(all, pictureSize(kMost, kMost) + frame(Kind::Raster, kMost, kMost) + kEnd));
    EXPECT_TRUE(isRefused(all, pictureSize(kMost, kMost) + frame(Kind::Raster, 32769, 1) + kEnd));
    EXPECT_TRUE(isRefused(all, pictureSize(kMost, kMost) + frame(Kind::Raster, 1, 32769) + kEnd));
}

TEST(ReadRasterAnswer, RastersTogetherTakeBoundedMemory)
{
    const RasterRequest large{RasterRequest::Kind::Pages, {8192, 16384}};
    // 8192 × 8192 pixels of four bytes are 256 MiB, so a second page of any size is too much.
    const std::vector<std::string> frames{
        pageCount(2),
        frame(Kind::OpaqueRaster, 8192, 8192),
        std::string(), // its pixels
        frame(Kind::OpaqueRaster, 8192, 1)};
    std::size_t at = 0;
    const RasterAnswer answer = readRasterAnswer(large, [&](std::span<char> into) {
        std::ranges::copy(frames.at(at++), into.begin());
        return true;
    });

    EXPECT_EQ(at, frames.size());
    EXPECT_EQ(answer.outcome, RasterOutcome::Refused);
    EXPECT_TRUE(isRefused(large, pageCount(2) + frame(Kind::OpaqueRaster, 8192, 8193)));
}

TEST(ReadRasterAnswer, ThereAreNoMorePagesThanTheDocumentHas)
{
    EXPECT_EQ(read(kPages, pageCount(1) + raster(4, 5) + kEnd).outcome, RasterOutcome::Whole);
    EXPECT_TRUE(isRefused(kPages, pageCount(1) + raster(4, 5) + raster(4, 5) + kEnd));
}

TEST(ReadRasterAnswer, ThereAreNoMoreThanTenPages)
{
    std::string pages = pageCount(100);
    for (int i = 0; i < 10; ++i) {
        pages += raster(4, 5);
    }
    EXPECT_EQ(read(kPages, pages + kEnd).rasters.size(), 10U);
    EXPECT_TRUE(isRefused(kPages, pages + raster(4, 5) + kEnd));
}

TEST(ReadRasterAnswer, APictureIsOne)
{
    const std::string picture = pictureSize(10, 8) + raster(1, 1);

    EXPECT_TRUE(isRefused(kPicture, picture + raster(1, 1) + kEnd));
    EXPECT_TRUE(isRefused(kPicture, picture + pictureSize(10, 8) + kEnd));
}

TEST(ReadRasterAnswer, RastersComeAfterWhatTheyBelongTo)
{
    EXPECT_TRUE(isRefused(kPicture, raster(1, 1) + kEnd));
    EXPECT_TRUE(isRefused(kPages, raster(4, 5) + kEnd));
    EXPECT_TRUE(isRefused(kPages, pageCount(1) + pageCount(1) + kEnd));
}

TEST(ReadRasterAnswer, OnlyWhatWasAskedForIsAnswered)
{
    EXPECT_TRUE(isRefused(kPicture, pageCount(1) + kEnd));
    EXPECT_TRUE(isRefused(kPages, pictureSize(5, 5) + kEnd));
}

TEST(ReadRasterAnswer, AFrameOfNoKnownKindIsRefused)
{
    EXPECT_TRUE(isRefused(kPicture, frame(static_cast<Kind>(0)) + kEnd));
    EXPECT_TRUE(isRefused(kPicture, frame(static_cast<Kind>(6)) + kEnd));
    EXPECT_TRUE(isRefused(kPicture, std::string(16, 'x') + kEnd));
}

} // namespace
} // namespace tessera
