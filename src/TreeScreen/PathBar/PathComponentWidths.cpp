// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/PathComponentWidths.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace tessera {

namespace {

/// With this much the last component still shows some letters of its name.
constexpr double kLeastLastWidth = 96.0;

/// Below this, what is left of a name says nothing.
constexpr double kLeastNameWidth = 60.0;

double sum(std::span<const double> widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// The width that all may have so that, narrower ones keeping theirs, they fill `available`; no
/// limit when all fit.
double commonLimit(std::span<const double> natural, double available)
{
    std::vector<double> ascending(natural.begin(), natural.end());
    std::sort(ascending.begin(), ascending.end());
    double left = available;
    auto count = static_cast<double>(ascending.size());
    for (const double width : ascending) {
        if (width > left / count) {
            break;
        }
        left -= width;
        --count;
    }
    return count > 0 ? std::floor(left / count) : std::numeric_limits<double>::infinity();
}

/// Makes components fit: the first ones show their icons alone, as many as it takes for the names
/// of the others, which are nearer to the folder in view, to stay readable.
void limit(std::span<double> widths, double available)
{
    double widest = commonLimit(widths, available);
    while (widest < kLeastNameWidth && !widths.empty()) {
        widths.front() = kIconComponentWidth;
        widths = widths.subspan(1);
        available -= kIconComponentWidth;
        widest = commonLimit(widths, available);
    }
    for (double& width : widths) {
        width = std::min(width, widest);
    }
}

/// Leaves out as many in the middle as it takes for the others to have their icons.
PathComponentWidths withGap(std::size_t count, double lastWidth, double available)
{
    PathComponentWidths result{std::vector<double>(count, 0.0), count - 1};
    result.widths.back() = std::min(lastWidth, available);
    double left = available - lastWidth - kPathGapWidth - kIconComponentWidth;
    if (left < 0) {
        return result;
    }
    result.widths.front() = kIconComponentWidth;
    while (left >= kIconComponentWidth && result.hasGap()) {
        --result.firstAfterGap;
        result.widths[result.firstAfterGap] = kIconComponentWidth;
        left -= kIconComponentWidth;
    }
    return result;
}

} // namespace

PathComponentWidths pathComponentWidths(std::span<const double> natural, double available)
{
    PathComponentWidths result{{natural.begin(), natural.end()}};
    if (natural.empty() || sum(natural) <= available) {
        return result;
    }
    const std::span<const double> before = natural.first(natural.size() - 1);
    const double leastBefore = kIconComponentWidth * static_cast<double>(before.size());
    const double last
        = std::min(natural.back(), std::max(available - leastBefore, kLeastLastWidth));
    if (leastBefore + last > available) {
        return withGap(natural.size(), last, available);
    }
    result.widths.back() = last;
    limit(std::span(result.widths).first(before.size()), available - last);
    return result;
}

} // namespace tessera
