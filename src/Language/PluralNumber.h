// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>

namespace tessera {

/// The number by which Qt chooses among a language's plural forms, for a text that has the exact
/// one at a place of its own: Qt knows int alone. Languages tell large numbers apart by their last
/// digits, and those stay.
[[nodiscard]] constexpr int pluralNumber(std::uint64_t count)
{
    constexpr std::uint64_t kRound = 1'000'000;
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<int>::max());
    return static_cast<int>(count <= kMost ? count : kRound + count % kRound);
}

} // namespace tessera
