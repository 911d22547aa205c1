// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/FileReader.h"
#include "QuickLook/Reading/RasterDecoder.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <string>
#include <variant>
#include <vector>

namespace tessera {

/// The beginning of a text file.
struct PreviewText {
    QString text;
    bool isCut = false; ///< there is more of it than was read
};

/// An image, scaled down to the pixels that can be shown.
struct PreviewPicture {
    QImage image;
};

/// The first pages of a document, each painted on white.
struct PreviewPages {
    std::vector<QImage> pages;
    int pageCount = 0; ///< pages of the whole document
};

/// What a look at a file brought. Made by a worker and handed over as a whole.
struct Preview {
    FileDescription file;
    std::error_code contentError; ///< why the content of a regular file is not shown
    QString kind; ///< "PNG image", in the user's language; empty when nothing is known
    RasterOutcome decoding = RasterOutcome::Whole; ///< of a picture or of pages
    QSize pixelSize; ///< an image's own, also when it is too large to be shown
    std::variant<std::monostate, PreviewText, PreviewPicture, PreviewPages> content;
};

/// What is to be looked at, and how much of it can be shown.
struct PreviewRequest {
    std::string path; ///< absolute, as bytes
    bool isFolder = false; ///< what it was when it was scanned
    QSize pictureLimit; ///< pixels of the screen that an image can take at the most
    int pageWidth = 0; ///< pixels of the screen that a page takes
};

} // namespace tessera
