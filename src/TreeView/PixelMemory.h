// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace tessera {

/// An opaque image with undefined pixels. Its memory comes from an image that is no longer used,
/// where there is one: getting as many fresh pages from the system would cost as much time as
/// painting them. Main thread; the image may be used and released on any.
QImage makePooledImage(int width, int height);

} // namespace tessera
