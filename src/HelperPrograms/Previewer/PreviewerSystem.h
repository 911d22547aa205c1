// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/FileReader.h"

#include <cstdint>
#include <memory>
#include <span>

namespace tessera {

/// The file that the process was started with.
struct PreviewerInput {
    std::unique_ptr<ReadableFile> file; ///< null when it is no regular file
    std::uint64_t length = 0;
};

/// What standard input is.
PreviewerInput standardInput();

/// False when nobody takes it any more.
[[nodiscard]] bool writeStandardOutput(std::span<const char> bytes);

/// Sets the limits on memory and time, gives up every right and every open file that decoding does
/// not need, and has the process end with whoever started it. All this is for good. False when a
/// limit cannot be set: then nothing may be decoded. To be called with one thread.
[[nodiscard]] bool limitProcess();

/// Closes the way to the disk, but for the system's own fonts and libraries, to the network and to
/// other processes, as far as the kernel knows how. To be called once the decoders are loaded, with
/// one thread.
void confineProcess();

} // namespace tessera
