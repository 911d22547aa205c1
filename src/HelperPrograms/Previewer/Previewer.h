// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Previewer/AnswerWriter.h"
#include "QuickLook/Reading/RasterDecoder.h"

class QIODevice;

namespace tessera {

/// Brings the decoders into memory, so that none has to be looked for on the disk later.
void loadDecoders();

/// Decodes what the device holds and writes the answer. False when it could not be written to its
/// end. A file that cannot be decoded has an answer too: one without rasters.
[[nodiscard]] bool answerRequest(
    const RasterRequest& request, QIODevice& device, AnswerWriter& writer);

} // namespace tessera
