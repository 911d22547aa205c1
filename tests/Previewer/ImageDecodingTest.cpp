// SPDX-License-Identifier: MIT
#include "Previewer/ImageDecoding.h"

#include "QuickLook/sampleFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace tessera {
namespace {

constexpr QSize kLimit{100, 100};

struct DecodedImage {
    QSize pixelSize;
    QImage image;
};

DecodedImage decoded(const std::string& bytes, const QSize& limit = kLimit)
{
    QBuffer device;
    device.setData(QByteArray::fromStdString(bytes));
    device.open(QIODevice::ReadOnly);
    ImageDecoding decoding(device);
    if (!decoding.pixelSize().isValid()) {
        return {};
    }
    return {decoding.pixelSize(), decoding.read(limit)};
}

TEST(ImageDecoding, SmallImagesAreNotEnlarged)
{
    const DecodedImage image = decoded(test::imageFile({30, 20}, "png"));

    EXPECT_EQ(image.pixelSize, QSize(30, 20));
    EXPECT_EQ(image.image.size(), QSize(30, 20));
    EXPECT_EQ(image.image.pixelColor(0, 0), QColor(Qt::red));
}

TEST(ImageDecoding, LargeImagesAreScaledToTheLimitAndKeepTheirShape)
{
    for (const char* format : {"png", "jpg", "bmp"}) {
        const DecodedImage image = decoded(test::imageFile({400, 200}, format));

        EXPECT_EQ(image.pixelSize, QSize(400, 200)) << format;
        EXPECT_EQ(image.image.size(), QSize(100, 50)) << format;
    }
}

TEST(ImageDecoding, AnImageOfOneLineKeepsAPixelOfHeight)
{
    EXPECT_EQ(decoded(test::imageFile({9000, 1}, "png")).image.size(), QSize(100, 1));
}

TEST(ImageDecoding, AnAnimationIsShownByItsFirstImage)
{
    const DecodedImage image = decoded(test::animatedGif());

    ASSERT_EQ(image.image.size(), QSize(1, 1));
    EXPECT_EQ(image.image.pixelColor(0, 0), QColor(Qt::red));
}

TEST(ImageDecoding, ABrokenImageHasItsSizeOnly)
{
    const std::string bytes = test::imageFile({300, 200}, "png");

    const DecodedImage image = decoded(bytes.substr(0, bytes.size() - 40));

    EXPECT_EQ(image.pixelSize, QSize(300, 200));
    EXPECT_TRUE(image.image.isNull());
}

TEST(ImageDecoding, AnImageOfBillionsOfPixelsHasItsSizeOnly)
{
    const DecodedImage image = decoded(test::pngOfClaimedSize(60000, 60000));

    EXPECT_EQ(image.pixelSize, QSize(60000, 60000));
    EXPECT_TRUE(image.image.isNull());
}

TEST(ImageDecoding, DrawingsThatMayNameOtherFilesAreNotRead)
{
    const DecodedImage image = decoded(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="5" height="5"><rect width="5"/></svg>)");

    EXPECT_FALSE(image.pixelSize.isValid());
    EXPECT_TRUE(image.image.isNull());
}

TEST(ImageDecoding, BytesThatAreNoImageAreNone)
{
    for (const char* bytes : {"", "BMW builds cars", "P1 is a room", "GIF89a", "plain text"}) {
        EXPECT_FALSE(decoded(bytes).pixelSize.isValid()) << bytes;
    }
}

} // namespace
} // namespace tessera
