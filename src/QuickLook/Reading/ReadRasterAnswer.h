// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/RasterDecoder.h"

#include <functional>
#include <span>

namespace tessera {

/// Fills all of the room; false when the bytes end before.
using ReadBytes = std::function<bool(std::span<char> into)>;

/// Reads frames up to the end of the answer and believes none of them: whoever wrote them has seen
/// hostile bytes. What was complete before the bytes ended is kept; one frame that contradicts the
/// request or the frames before it, and nothing is. Takes no more memory than the request allows.
RasterAnswer readRasterAnswer(const RasterRequest& request, const ReadBytes& read);

} // namespace tessera
