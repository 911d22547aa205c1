// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Preview.h"

#include <atomic>

class QIODevice;

namespace tessera {

/// Whether documents of pages can be shown at all; it depends on what Tessera was built with.
bool canDecodePages();

/// Paints the first pages of a PDF document, each `width` pixels wide. No pages when the document
/// is broken, locked or empty, or once `isCancelled` is set. For workers.
PreviewPages decodedPages(QIODevice& device, int width, const std::atomic<bool>& isCancelled);

} // namespace tessera
