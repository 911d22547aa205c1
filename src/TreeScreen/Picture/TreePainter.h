// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Picture/FolderTitles.h"
#include "TreeScreen/Picture/PixelMemory.h"

#include <QImage>
#include <QSizeF>

#include <memory>

namespace tessera {

class TreeBranch;

/// Paints pictures of the tree. What it learns about text and corners, and the memory of a picture
/// that is no longer used, serve the next one. Main thread only.
class TreePainter final {
public:
    TreePainter();
    TreePainter(const TreePainter&) = delete;
    TreePainter& operator=(const TreePainter&) = delete;
    ~TreePainter();

    /// Paints the branch and everything below it on black, into an opaque image whose device pixel
    /// ratio is `scale`. Uses two threads, where the system has another one, and returns when done;
    /// null when the size or the scale is not positive.
    QImage paint(const TreeBranch& top, QSizeF sizeInPoints, double scale, FolderTitles titles);

private:
    struct Caches;

    std::unique_ptr<Caches> m_caches;
    PixelMemory m_memory;
};

} // namespace tessera
