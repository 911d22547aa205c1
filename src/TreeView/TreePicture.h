// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSizeF>

class QPainter;

namespace tessera {

class TreeBranch;

/// Paints the branch and everything below it on black, into an opaque image whose device pixel
/// ratio is `scale`. Uses two threads and returns when done; what it learns about text and corners
/// is kept for the next picture. Main thread only; null when the size or the scale is not positive.
QImage paintTreePicture(const TreeBranch& top, QSizeF sizeInPoints, double scale);

/// Paints the boxes of one branch alone; the painter's origin is the branch's. Main thread only.
void paintBranch(const TreeBranch& branch, QPainter& painter);

} // namespace tessera
