// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace tessera {

/// The range of the progress bars, which count whole steps.
inline constexpr int kProgressSteps = 1000;

/// A fraction as steps of a progress bar. The figures of a scan and of an archive are neither
/// clamped nor always numbers: what is no finite number shows nothing done.
inline int progressSteps(double fraction)
{
    if (!std::isfinite(fraction)) {
        return 0;
    }
    return static_cast<int>(std::clamp(fraction, 0.0, 1.0) * kProgressSteps);
}

} // namespace tessera
