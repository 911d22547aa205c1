// SPDX-License-Identifier: MIT
#include "Model/Defaults.h"

#include "Model/UserDefaults.h"

namespace tessera {

namespace {

constexpr int kFullTooltip = 2;

} // namespace

void registerDefaults(UserDefaults& defaults)
{
    defaults.registerDefaults({
        {std::string(kTooltipTypeKey), kFullTooltip},
        {std::string(kWarnDeleteHiddenKey), true},
        {std::string(kWarnDeleteSystemKey), true},
    });
}

} // namespace tessera
