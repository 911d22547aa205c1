// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace tessera {

/// The range of the progress bars, which count whole steps.
inline constexpr int kProgressSteps = 1000;

/// How much of a progress bar is filled, 0 to 1. The figures of a scan and of an archive are
/// neither clamped nor always numbers: what is no finite number shows nothing done.
inline double shownProgress(double fraction)
{
    return std::isfinite(fraction) ? std::clamp(fraction, 0.0, 1.0) : 0.0;
}

/// The same as steps of the bar.
inline int progressSteps(double fraction)
{
    return static_cast<int>(shownProgress(fraction) * kProgressSteps);
}

} // namespace tessera
