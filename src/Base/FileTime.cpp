// SPDX-License-Identifier: MIT
#include "Base/FileTime.h"

#include <chrono>

namespace tessera {

namespace {

using std::chrono::nanoseconds;

/// So long after now.
FileTime timeIn(nanoseconds distance)
{
    using namespace std::chrono;
    const auto moment = system_clock::now().time_since_epoch() + distance;
    const auto whole = floor<seconds>(moment);
    const auto rest = duration_cast<nanoseconds>(moment - whole);
    return {whole.count(), static_cast<std::uint32_t>(rest.count())};
}

} // namespace

FileTime timeBeforeChanges()
{
    constexpr std::chrono::milliseconds kMostBehind{20};
    return timeIn(-kMostBehind);
}

FileTime timeAfterChanges()
{
    return timeIn(nanoseconds(1));
}

} // namespace tessera
