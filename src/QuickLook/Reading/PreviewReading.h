// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/Preview.h"

#include <cstddef>
#include <stop_token>

namespace tessera {

class FileReader;
class RasterDecoder;

/// How much of a text is shown, in bytes.
inline constexpr std::size_t kPreviewTextBytes = std::size_t{64} * 1024;

/// Looks at the file and makes of it what can be shown: a picture, pages, the beginning of a text,
/// or no more than its description. What is no folder any more, or has become one, counts as gone.
/// It may block for as long as the file system does, hence runs on workers only; once `stop` is
/// requested it ends soon, with whatever it has.
Preview readPreview(
    const FileReader& files,
    const RasterDecoder& decoder,
    const PreviewRequest& request,
    const std::stop_token& stop);

} // namespace tessera
