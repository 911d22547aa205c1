// SPDX-License-Identifier: MIT
#include "QuickLook/PreviewReading.h"

#include "Model/Url.h"
#include "QuickLook/FileDevice.h"
#include "QuickLook/ImageDecoding.h"
#include "QuickLook/PageDecoding.h"
#include "QuickLook/TextDecoding.h"
#include "Utils/DisplayText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QMimeDatabase>
#include <QMimeType>

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace tessera {

namespace {

/// Larger files are no pictures or documents that anybody wants to wait for.
constexpr std::uint64_t kMostDecodedBytes = 1024ULL * 1024 * 1024;
/// A PDF's mark may stand behind some other bytes.
constexpr qsizetype kPdfMarkRoom = 1024;

/// The kinds of items that have no content, as the desktop names them.
QString specialTypeName(FileKind kind)
{
    switch (kind) {
    case FileKind::Folder:
        return QStringLiteral("inode/directory");
    case FileKind::SymbolicLink:
        return QStringLiteral("inode/symlink");
    case FileKind::Fifo:
        return QStringLiteral("inode/fifo");
    case FileKind::Socket:
        return QStringLiteral("inode/socket");
    case FileKind::BlockDevice:
        return QStringLiteral("inode/blockdevice");
    case FileKind::CharacterDevice:
        return QStringLiteral("inode/chardevice");
    case FileKind::Regular:
    case FileKind::Unknown:
        break;
    }
    return {};
}

/// Without a beginning the name alone tells.
QString kindText(
    const PreviewRequest& request, FileKind kind, const std::optional<QByteArray>& beginning)
{
    const QMimeDatabase types;
    const QString special = specialTypeName(kind);
    if (!special.isEmpty()) {
        return types.mimeTypeForName(special).comment();
    }
    const QString name = displayText(lastPathComponent(request.path));
    return beginning ? types.mimeTypeForFileNameAndData(name, *beginning).comment()
                     : types.mimeTypeForFile(name, QMimeDatabase::MatchExtension).comment();
}

/// The file's first bytes, one more than a text shows, so that it is known whether there are more.
std::optional<QByteArray> readBeginning(ReadableFile& file, const std::atomic<bool>& isCancelled)
{
    QByteArray beginning(static_cast<qsizetype>(kPreviewTextBytes + 1), '\0');
    const std::span<char> room(beginning.data(), kPreviewTextBytes + 1);
    std::size_t filled = 0;
    while (filled < room.size() && !isCancelled.load(std::memory_order_relaxed)) {
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

void showPictureOrPages(
    Preview& preview,
    OpenedFile& opened,
    const PreviewRequest& request,
    bool isPdf,
    const std::atomic<bool>& isCancelled)
{
    FileDevice device(*opened.content, opened.description.length, isCancelled);
    if (isPdf) {
        PreviewPages pages = decodedPages(device, request.pageWidth, isCancelled);
        if (!pages.pages.empty()) {
            preview.content = std::move(pages);
        }
        return;
    }
    DecodedImage decoded = decodedImage(device, request.pictureLimit);
    preview.pixelSize = decoded.pixelSize;
    if (!decoded.image.isNull()) {
        preview.content = PreviewPicture{std::move(decoded.image)};
    }
}

void showText(Preview& preview, const QByteArray& beginning)
{
    std::string_view bytes(beginning.constData(), static_cast<std::size_t>(beginning.size()));
    const bool isCut = bytes.size() > kPreviewTextBytes;
    bytes = bytes.substr(0, kPreviewTextBytes);
    const auto extent = isCut ? TextExtent::Beginning : TextExtent::Whole;
    if (auto text = decodedText(bytes, extent)) {
        preview.content = PreviewText{*std::move(text), isCut};
    }
}

void showContent(
    Preview& preview,
    OpenedFile& opened,
    const PreviewRequest& request,
    const std::atomic<bool>& isCancelled)
{
    const auto beginning = readBeginning(*opened.content, isCancelled);
    preview.kind = kindText(request, preview.file.kind, beginning);
    if (!beginning) {
        preview.contentError = std::make_error_code(std::errc::io_error);
        return;
    }
    const bool isPdf
        = QByteArrayView(*beginning).first(qMin(kPdfMarkRoom, beginning->size())).contains("%PDF-");
    if (opened.description.length <= kMostDecodedBytes) {
        showPictureOrPages(preview, opened, request, isPdf, isCancelled);
    }
    // A PDF's bytes often pass for a text, which nobody wants to read.
    const bool isShown = !std::holds_alternative<std::monostate>(preview.content);
    if (!isShown && !preview.pixelSize.isValid() && !isPdf && !beginning->isEmpty()) {
        showText(preview, *beginning);
    }
}

} // namespace

Preview readPreview(
    const FileReader& files, const PreviewRequest& request, const std::atomic<bool>& isCancelled)
{
    OpenedFile opened = files.open(request.path);
    Preview preview;
    preview.file = opened.description;
    preview.contentError = opened.contentError;
    if (preview.file.error) {
        return preview;
    }
    if (opened.content != nullptr) {
        showContent(preview, opened, request, isCancelled);
    } else {
        preview.kind = kindText(request, preview.file.kind, std::nullopt);
    }
    return preview;
}

} // namespace tessera
