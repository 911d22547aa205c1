// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tessera {

/// No file and no tree counts as larger, in bytes. File systems may claim any size, and numbers
/// that wrap round would make the largest tree the smallest. Two sizes add up without wrapping, and
/// their difference is a signed number.
inline constexpr std::uint64_t kMaxAllocation = std::numeric_limits<std::int64_t>::max();

/// The sum of two sizes, or kMaxAllocation.
constexpr std::uint64_t saturatingSum(std::uint64_t a, std::uint64_t b)
{
    return std::min(std::min(a, kMaxAllocation) + std::min(b, kMaxAllocation), kMaxAllocation);
}

/// So many units of `unit` bytes, or kMaxAllocation.
constexpr std::uint64_t saturatingProduct(std::uint64_t count, std::uint64_t unit)
{
    return unit != 0 && count > kMaxAllocation / unit ? kMaxAllocation : count * unit;
}

/// What is left of `a` without `b`, or nothing.
constexpr std::uint64_t saturatingDifference(std::uint64_t a, std::uint64_t b)
{
    return a - std::min(a, b);
}

} // namespace tessera
