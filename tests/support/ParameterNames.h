// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <tuple>

namespace tessera::test {

/// As a part of a test's name: 1.25 becomes "1_25".
inline std::string nameOfScale(double scale)
{
    std::string text = std::to_string(scale);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    std::replace(text.begin(), text.end(), '.', '_');
    return text;
}

/// Names tests whose parameter is a scale, in pixels for each point.
inline constexpr auto kNameOfScale
    = [](const auto& tested) { return "scale" + nameOfScale(tested.param); };

/// Names tests whose parameter is a level of the tree and a scale.
inline constexpr auto kNameOfLevelAndScale = [](const auto& tested) {
    return "level" + std::to_string(std::get<0>(tested.param)) + "_scale"
        + nameOfScale(std::get<1>(tested.param));
};

} // namespace tessera::test
