// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/PreviewReading.h"

#include "QuickLook/Reading/ContentMark.h"
#include "QuickLook/Reading/KindName.h"
#include "QuickLook/Reading/TextOrBinary.h"

#include <QByteArray>

#include <optional>
#include <span>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

/// Larger files are no pictures or documents that anybody wants to wait for.
constexpr std::uint64_t kMostDecodedBytes = 1024ULL * 1024 * 1024;
/// A page may be drawn on a strip of paper kilometres long.
constexpr int kMostHeightPerWidth = 4;

/// The file's first bytes, one more than a text shows, so that it is known whether there are more.
std::optional<QByteArray> readBeginning(ReadableFile& file, const std::stop_token& stop)
{
    QByteArray beginning(static_cast<qsizetype>(kPreviewTextBytes + 1), '\0');
    const std::span<char> room(beginning.data(), kPreviewTextBytes + 1);
    std::size_t filled = 0;
    while (filled < room.size() && !stop.stop_requested()) {
        const auto count = file.readAt(filled, room.subspan(filled));
        if (!count && filled == 0) {
            return std::nullopt;
        }
        if (!count || *count == 0) {
            break;
        }
        filled += *count;
    }
    beginning.resize(static_cast<qsizetype>(filled));
    return beginning;
}

std::string_view bytesOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

RasterRequest rasterRequest(const PreviewRequest& request, ContentMark mark)
{
    if (mark == ContentMark::Pages) {
        return {
            RasterRequest::Kind::Pages,
            {request.pageWidth, request.pageWidth * kMostHeightPerWidth}};
    }
    return {
        RasterRequest::Kind::Picture,
        {request.pictureLimit.width(), request.pictureLimit.height()}};
}

QImage imageOf(const Raster& raster)
{
    const auto* const pixels
        = static_cast<const uchar*>(static_cast<const void*>(raster.pixels.data()));
    const QImage image(
        pixels,
        raster.size.width,
        raster.size.height,
        raster.isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    return image.copy();
}

void adoptRasters(Preview& preview, const RasterAnswer& answer, RasterRequest::Kind kind)
{
    preview.decoding = answer.outcome;
    if (answer.pictureSize) {
        preview.pixelSize = QSize(answer.pictureSize->width, answer.pictureSize->height);
    }
    if (answer.rasters.empty()) {
        return;
    }
    if (kind == RasterRequest::Kind::Picture) {
        preview.content = PreviewPicture{imageOf(answer.rasters.front())};
        return;
    }
    PreviewPages pages;
    pages.pageCount = answer.pageCount;
    for (const Raster& raster : answer.rasters) {
        pages.pages.push_back(imageOf(raster));
    }
    preview.content = std::move(pages);
}

bool isShown(const Preview& preview)
{
    return !std::holds_alternative<std::monostate>(preview.content);
}

void showText(Preview& preview, const QByteArray& beginning)
{
    std::string_view bytes = bytesOf(beginning);
    const bool isCut = bytes.size() > kPreviewTextBytes;
    bytes = bytes.substr(0, kPreviewTextBytes);
    const auto extent = isCut ? TextExtent::Beginning : TextExtent::Whole;
    if (auto text = decodedText(bytes, extent)) {
        preview.content = PreviewText{*std::move(text), isCut};
        preview.decoding = RasterOutcome::Whole;
    }
}

ContentShown shownContent(const Preview& preview)
{
    if (std::holds_alternative<PreviewPages>(preview.content)) {
        return ContentShown::Pages;
    }
    if (std::holds_alternative<PreviewText>(preview.content)) {
        return ContentShown::Text;
    }
    return preview.pixelSize.isValid() ? ContentShown::Picture : ContentShown::Nothing;
}

void showContent(
    Preview& preview,
    OpenedFile& opened,
    const RasterDecoder& decoder,
    const PreviewRequest& request,
    const std::stop_token& stop)
{
    const auto beginning = readBeginning(*opened.content, stop);
    if (!beginning) {
        preview.kind = kindNameOfItem(request.path, preview.file.kind);
        preview.contentError = std::make_error_code(std::errc::io_error);
        return;
    }
    const ContentMark mark = contentMark(bytesOf(*beginning));
    const bool isForDecoder
        = mark != ContentMark::None && opened.description.length <= kMostDecodedBytes;
    if (isForDecoder && !stop.stop_requested()) {
        const RasterRequest wanted = rasterRequest(request, mark);
        adoptRasters(preview, decoder.decode(*opened.content, wanted, stop), wanted.kind);
    }
    // A PDF's bytes often pass for a text, which nobody wants to read.
    const bool mayBeText = mark != ContentMark::Pages && !preview.pixelSize.isValid();
    if (!isShown(preview) && mayBeText && !beginning->isEmpty()) {
        showText(preview, *beginning);
    }
    preview.kind = kindNameOfContent(request.path, *beginning, shownContent(preview));
}

/// A folder in a document's place, or the reverse, is something else of the same name.
bool isAsScanned(const FileDescription& found, const PreviewRequest& request)
{
    return found.error || (found.kind == FileKind::Folder) == request.isFolder;
}

} // namespace

Preview readPreview(
    const FileReader& files,
    const RasterDecoder& decoder,
    const PreviewRequest& request,
    const std::stop_token& stop)
{
    OpenedFile opened = files.open(request.path);
    Preview preview;
    if (!isAsScanned(opened.description, request)) {
        preview.file.error = std::make_error_code(std::errc::no_such_file_or_directory);
        return preview;
    }
    preview.file = opened.description;
    preview.contentError = opened.contentError;
    if (preview.file.error) {
        return preview;
    }
    if (opened.content != nullptr) {
        showContent(preview, opened, decoder, request, stop);
    } else {
        preview.kind = kindNameOfItem(request.path, preview.file.kind);
    }
    return preview;
}

} // namespace tessera
