// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/ReadRasterAnswer.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>

namespace tessera::test {

/// Hands out the bytes, one after the other, as often as it is asked.
inline ReadBytes readFrom(std::string bytes)
{
    return [rest = std::move(bytes)](std::span<char> into) mutable {
        const std::size_t count = std::min(into.size(), rest.size());
        std::copy_n(rest.begin(), count, into.begin());
        rest.erase(0, count);
        return count == into.size();
    };
}

} // namespace tessera::test
