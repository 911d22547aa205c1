// SPDX-License-Identifier: MIT
#include "Model/TooltipType.h"

#include "Model/UserDefaults.h"

#include <algorithm>

namespace tessera {

TooltipType tooltipType(const UserDefaults& defaults)
{
    constexpr int kLeast = static_cast<int>(TooltipType::None);
    constexpr int kMost = static_cast<int>(TooltipType::Full);
    return static_cast<TooltipType>(std::clamp(defaults.integer(kTooltipTypeKey), kLeast, kMost));
}

void setTooltipType(UserDefaults& defaults, TooltipType type)
{
    defaults.setInteger(kTooltipTypeKey, static_cast<int>(type));
}

} // namespace tessera
