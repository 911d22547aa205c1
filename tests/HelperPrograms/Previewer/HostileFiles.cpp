// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/HostileFiles.h"

#include "QuickLook/Reading/SampleFiles.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace tessera::test {

namespace {

constexpr std::size_t kFirstForm = 5;

std::vector<std::string> onePage(const std::string& content, const std::string& resources)
{
    return {
        "<</Type/Catalog/Pages 2 0 R>>",
        "<</Type/Pages/Kids[3 0 R]/Count 1>>",
        "<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 200]/Contents 4 0 R/Resources<<" + resources
            + ">>>>",
        pdfStream(content)};
}

std::string repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

} // namespace

std::string pdfThatTakesAllMemory()
{
    constexpr std::size_t kLevels = 10;
    constexpr int kTimes = 10;
    const std::string form = "/Type/XObject/Subtype/Form/BBox[0 0 200 200]";
    std::vector<std::string> objects
        = onePage("/X Do", "/XObject<</X " + std::to_string(kFirstForm) + " 0 R>>");
    for (std::size_t level = 1; level < kLevels; ++level) {
        std::string nested = form;
        nested.append("/Resources<</XObject<</X ")
            .append(std::to_string(kFirstForm + level))
            .append(" 0 R>>>>");
        objects.push_back(pdfStream(repeated("/X Do ", kTimes), nested));
    }
    objects.push_back(pdfStream("0 0 10 10 re f", form));
    return pdfOf(objects);
}

std::string pdfThatNeverEnds()
{
    constexpr int kSteps = 60'000;
    std::vector<std::string> objects = onePage("/S sh", "/Shading<</S 5 0 R>>");
    objects.emplace_back(
        "<</ShadingType 1/ColorSpace/DeviceGray/Domain[0 200 0 200]/Function 6 0 R>>");
    objects.push_back(pdfStream(
        "{ pop " + repeated("dup sin pop ", kSteps) + "}",
        "/FunctionType 4/Domain[0 200 0 200]/Range[0 1]"));
    return pdfOf(objects);
}

std::string jpegThatTakesAllMemory()
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpg");
    writer.setProgressiveScanWrite(true);
    if (!writer.write(image)) {
        throw std::runtime_error("no writer of JPEG");
    }
    QByteArray bytes = buffer.data();
    // The frame's header: mark, length, bits, then height and width.
    const qsizetype frame = bytes.indexOf("\xFF\xC2");
    if (frame < 0) {
        throw std::runtime_error("the JPEG is not progressive");
    }
    constexpr qsizetype kHeightOffset = 5;
    const QByteArray side = QByteArray::fromHex("3E80"); // 16,000
    bytes.replace(frame + kHeightOffset, 4, side + side);
    return bytes.toStdString();
}

} // namespace tessera::test
