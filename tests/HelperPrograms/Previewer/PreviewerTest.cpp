// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/Previewer.h"

#include "QuickLook/Reading/ReadFrom.h"
#include "QuickLook/Reading/ReadRasterAnswer.h"
#include "QuickLook/Reading/SampleFiles.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

/// What the bytes of a file are answered, and the answer read back.
class Previewer : public testing::Test {
protected:
    RasterAnswer answer(const std::string& file, const RasterRequest& request)
    {
        said.clear();
        QBuffer device;
        device.setData(QByteArray::fromStdString(file));
        device.open(QIODevice::ReadOnly);
        AnswerWriter writer([this](std::span<const char> bytes) {
            said.append(bytes.data(), bytes.size());
            return true;
        });
        EXPECT_TRUE(answerRequest(request, device, writer));
        return readRasterAnswer(request, test::readFrom(said));
    }

    std::string said;
};

constexpr RasterRequest kPicture{RasterRequest::Kind::Picture, {100, 100}};

TEST_F(Previewer, APictureIsAnsweredByItsSizeAndPixels)
{
    const RasterAnswer found = answer(test::imageFile({400, 200}, "png"), kPicture);

    EXPECT_EQ(found.outcome, RasterOutcome::Whole);
    EXPECT_EQ(found.pictureSize, (PixelSize{400, 200}));
    ASSERT_EQ(found.rasters.size(), 1U);
    EXPECT_EQ(found.rasters.front().size, (PixelSize{100, 50}));
    EXPECT_TRUE(found.rasters.front().isOpaque);
}

TEST_F(Previewer, AnImageOfFewColoursIsAnsweredByItsPixels)
{
    const RasterAnswer found = answer(test::animatedGif(), kPicture);

    ASSERT_EQ(found.rasters.size(), 1U);
    EXPECT_EQ(found.rasters.front().pixels, (std::vector<char>{'\0', '\0', '\xFF', '\xFF'}));
}

TEST_F(Previewer, ABrokenPictureIsAnsweredByItsSize)
{
    const std::string whole = test::imageFile({300, 200}, "png");

    const RasterAnswer found = answer(whole.substr(0, whole.size() - 40), kPicture);

    EXPECT_EQ(found.outcome, RasterOutcome::Whole);
    EXPECT_EQ(found.pictureSize, (PixelSize{300, 200}));
    EXPECT_TRUE(found.rasters.empty());
}

TEST_F(Previewer, WhatIsNoPictureIsAnsweredByTheEnd)
{
    const RasterAnswer found = answer("BMW builds cars", kPicture);

    EXPECT_EQ(found.outcome, RasterOutcome::Whole);
    EXPECT_FALSE(found.pictureSize);
}

TEST_F(Previewer, ABrokenDocumentIsAnsweredByTheEnd)
{
    const RasterAnswer found
        = answer("%PDF-1.4 and nothing else", {RasterRequest::Kind::Pages, {100, 400}});

    EXPECT_EQ(found.outcome, RasterOutcome::Whole);
    EXPECT_EQ(found.pageCount, 0);
}

#ifdef TESSERA_READS_PDF
TEST_F(Previewer, ADocumentIsAnsweredByItsFirstTenPages)
{
    const RasterAnswer found = answer(test::pdfFile(12), {RasterRequest::Kind::Pages, {100, 400}});

    EXPECT_EQ(found.outcome, RasterOutcome::Whole);
    EXPECT_EQ(found.pageCount, 12);
    ASSERT_EQ(found.rasters.size(), 10U);
    EXPECT_EQ(found.rasters.back().size, (PixelSize{100, 141}));
}
#endif

TEST_F(Previewer, EndsWhenNobodyTakesItsAnswer)
{
    QBuffer device;
    device.setData(QByteArray::fromStdString(test::imageFile({4, 2}, "png")));
    device.open(QIODevice::ReadOnly);
    int pieces = 0;
    AnswerWriter writer([&pieces](std::span<const char>) { return ++pieces < 2; });

    EXPECT_FALSE(answerRequest(kPicture, device, writer));
    EXPECT_EQ(pieces, 2);
}

TEST(AnswerWriter, LeavesOutWhatAnAnswerHasNoRoomFor)
{
    std::size_t bytes = 0;
    AnswerWriter writer([&bytes](std::span<const char> piece) {
        bytes += piece.size();
        return true;
    });
    // Three times 100 MiB are more than 256.
    QImage image(5120, 5120, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(writer.writeRaster(image));
    }

    EXPECT_EQ(bytes, 2 * (16 + std::size_t{5120} * 5120 * 4));
}

} // namespace
} // namespace tessera
