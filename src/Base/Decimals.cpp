// SPDX-License-Identifier: MIT
#include "Base/Decimals.h"

#include <array>
#include <charconv>
#include <limits>

namespace tessera {

namespace {

/// A sign, the point, and decimals in plenty.
constexpr std::size_t kBesideDigits = 32;

} // namespace

std::string decimals(double value, int precision)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + kBesideDigits> text{};
    const auto result = std::to_chars(
        text.data(), text.data() + text.size(), value, std::chars_format::fixed, precision);
    return {text.data(), result.ptr};
}

} // namespace tessera
