// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/RasterDecoder.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tessera {

/// The request as arguments of the program that decodes: KIND WIDTH HEIGHT.
std::vector<std::string> rasterArguments(const RasterRequest& request);

/// The way back. They have one form only; nothing is returned for any other.
std::optional<RasterRequest> parseRasterArguments(std::span<const char* const> arguments);

} // namespace tessera
