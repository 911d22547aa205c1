// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace tessera {

enum class ContentMark : std::uint8_t {
    None, ///< for no decoder
    Picture,
    Pages,
};

/// Which decoder a file's first bytes, of which 1024 are enough, call for. Other files may begin
/// with the same bytes; only the decoder knows.
ContentMark contentMark(std::string_view beginning);

} // namespace tessera
