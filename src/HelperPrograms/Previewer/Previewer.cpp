// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/Previewer.h"

#include "HelperPrograms/Previewer/ImageDecoding.h"
#include "HelperPrograms/Previewer/PageDecoding.h"

#include <QImageReader>

#include <algorithm>
#include <memory>

namespace tessera {

namespace {

bool answerWithPicture(const QSize& limit, QIODevice& device, AnswerWriter& writer)
{
    ImageDecoding decoding(device);
    if (!decoding.pixelSize().isValid()) {
        return true;
    }
    // Told first, for the picture itself may be too much.
    return writer.writePictureSize(decoding.pixelSize())
        && writer.writeRaster(decoding.read(limit));
}

bool answerWithPages(const QSize& limit, QIODevice& device, AnswerWriter& writer)
{
    const std::unique_ptr<PageDecoding> document = openDocument(device);
    if (document == nullptr || document->pageCount() < 1) {
        return true;
    }
    if (!writer.writePageCount(document->pageCount())) {
        return false;
    }
    const int shown = std::min(document->pageCount(), static_cast<int>(kMostPages));
    for (int page = 0; page < shown; ++page) {
        if (!writer.writeRaster(document->paint(page, limit))) {
            return false;
        }
    }
    return true;
}

} // namespace

void loadDecoders()
{
    // Asks each of the plugins what it can do.
    (void)QImageReader::supportedImageFormats();
}

bool answerRequest(const RasterRequest& request, QIODevice& device, AnswerWriter& writer)
{
    const QSize limit(request.limit.width, request.limit.height);
    const bool isWritten = request.kind == RasterRequest::Kind::Picture
        ? answerWithPicture(limit, device, writer)
        : answerWithPages(limit, device, writer);
    return isWritten && writer.writeEnd();
}

} // namespace tessera
