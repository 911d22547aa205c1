// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>

#include <memory>

class QIODevice;

namespace tessera {

/// An open document of pages.
class PageDecoding {
public:
    PageDecoding() = default;
    PageDecoding(const PageDecoding&) = delete;
    PageDecoding& operator=(const PageDecoding&) = delete;
    virtual ~PageDecoding() = default;

    [[nodiscard]] virtual int pageCount() = 0;

    /// The page, counted from 0, on white: as wide as the limit, and cut where it would be higher.
    /// Null when it cannot be painted.
    [[nodiscard]] virtual QImage paint(int page, const QSize& limit) = 0;
};

/// Opens a PDF document, which the device must outlive. Null when it is broken or locked, or when
/// Tessera was built without a reader of PDF documents.
std::unique_ptr<PageDecoding> openDocument(QIODevice& device);

} // namespace tessera
