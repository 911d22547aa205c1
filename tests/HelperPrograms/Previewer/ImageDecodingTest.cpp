// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/ImageDecoding.h"

#include "QuickLook/Reading/SampleFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

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

/// What a camera writes that was held upright: its picture lies on its side, red at the left.
std::string uprightPhotograph()
{
    QImage stored(400, 200, QImage::Format_RGB32);
    stored.fill(Qt::blue);
    for (int y = 0; y < stored.height(); ++y) {
        for (int x = 0; x < stored.width() / 2; ++x) {
            stored.setPixelColor(x, y, Qt::red);
        }
    }
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    stored.save(&file, "jpg");
    // Behind the file's mark: that the picture is to be turned by a quarter, clockwise.
    constexpr std::string_view kTurn(
        "\xFF\xE1\0\x22"
        "Exif\0\0MM\0*\0\0\0\x08\0\x01"
        "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
        36);
    return file.data().toStdString().insert(2, kTurn);
}

TEST(ImageDecoding, APhotographThatLiesOnItsSideIsTurnedUpright)
{
    const DecodedImage photograph = decoded(uprightPhotograph());

    EXPECT_EQ(photograph.pixelSize, QSize(200, 400));
    ASSERT_EQ(photograph.image.size(), QSize(50, 100));
    // What was at the left is on top.
    EXPECT_GT(photograph.image.pixelColor(25, 10).red(), 200);
    EXPECT_GT(photograph.image.pixelColor(25, 90).blue(), 200);
}

/// An icon file of square pictures.
std::string iconFile(const std::vector<int>& sides)
{
    const auto number = [](std::size_t value, int bytes) {
        std::string text;
        for (; bytes > 0; --bytes, value >>= 8U) {
            text += static_cast<char>(value & 0xFFU);
        }
        return text;
    };
    std::string head = number(0, 2) + number(1, 2) + number(sides.size(), 2);
    std::string pictures;
    for (const int side : sides) {
        const std::string picture = test::imageFile({side, side}, "png");
        const auto edge = static_cast<std::size_t>(side);
        head += number(edge, 1) + number(edge, 1) + number(0, 2) + number(1, 2) + number(32, 2)
            + number(picture.size(), 4) + number(6 + 16 * sides.size() + pictures.size(), 4);
        pictures += picture;
    }
    return head + pictures;
}

TEST(ImageDecoding, AnIconIsShownByItsLargestImage)
{
    if (!QImageReader::supportedImageFormats().contains("ico")) {
        GTEST_SKIP() << "Qt reads no icons here";
    }
    EXPECT_EQ(decoded(iconFile({16, 48, 32})).image.size(), QSize(48, 48));
}

TEST(ImageDecoding, AnImageLargerThanWhatQtAllowsByItselfIsShown)
{
    // 36 million pixels of four bytes are more than 128 MiB.
    EXPECT_EQ(
        decoded(test::imageFile({8000, 4500}, "png"), {8000, 4500}).image.size(),
        QSize(8000, 4500));
}

TEST(ImageDecoding, FormatsThatNoPreviewNamesAreNotRead)
{
    const char* const bytes
        = "/* XPM */\nstatic char *a[] = {\n\"1 1 1 1\",\n\"x c #FF0000\",\n\"x\"};\n";
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    ASSERT_EQ(QImageReader::imageFormat(&device), "xpm");

    EXPECT_FALSE(decoded(bytes).pixelSize.isValid());
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
