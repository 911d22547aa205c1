// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/RasterDecoder.h"

#include <string>
#include <vector>

namespace tessera {

/// Has a program decode in a process of its own, which gets the open file as its standard input,
/// answers on its standard output, and gets nothing else: no path, no display, no bus. The process
/// is killed when it has answered, has said what does not add up, or is not wanted any more.
class ChildRasterDecoder final : public RasterDecoder {
public:
    /// The program's path as bytes. To be made on the main thread.
    explicit ChildRasterDecoder(std::string program);

    [[nodiscard]] RasterAnswer decode(
        const ReadableFile& file,
        const RasterRequest& request,
        const std::stop_token& stop) const override;

private:
    std::string m_program;
    std::vector<std::string> m_environment; ///< "NAME=value"
};

} // namespace tessera
