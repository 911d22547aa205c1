// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/RasterArguments.h"

#include "QuickLook/Reading/RasterFrame.h"

#include <charconv>
#include <string_view>
#include <system_error>

namespace tessera {

namespace {

constexpr std::string_view kPicture = "picture";
constexpr std::string_view kPages = "pages";

std::optional<RasterRequest::Kind> parseKind(std::string_view word)
{
    if (word == kPicture) {
        return RasterRequest::Kind::Picture;
    }
    return word == kPages ? std::optional(RasterRequest::Kind::Pages) : std::nullopt;
}

std::optional<std::int32_t> parseSide(std::string_view word)
{
    std::int32_t side = 0;
    const char* const end = word.data() + word.size();
    const auto [stopped, error] = std::from_chars(word.data(), end, side);
    if (error != std::errc() || stopped != end || side < 1 || side > kMostSide) {
        return std::nullopt;
    }
    return side;
}

} // namespace

std::vector<std::string> rasterArguments(const RasterRequest& request)
{
    const bool isPicture = request.kind == RasterRequest::Kind::Picture;
    return {
        std::string(isPicture ? kPicture : kPages),
        std::to_string(request.limit.width),
        std::to_string(request.limit.height)};
}

std::optional<RasterRequest> parseRasterArguments(std::span<const char* const> arguments)
{
    if (arguments.size() != 3) {
        return std::nullopt;
    }
    const auto kind = parseKind(arguments[0]);
    const auto width = parseSide(arguments[1]);
    const auto height = parseSide(arguments[2]);
    if (!kind || !width || !height) {
        return std::nullopt;
    }
    return RasterRequest{*kind, {*width, *height}};
}

} // namespace tessera
