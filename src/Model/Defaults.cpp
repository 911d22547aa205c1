// SPDX-License-Identifier: MIT
#include "Model/Defaults.h"

#include "Model/TooltipType.h"
#include "Model/UserDefaults.h"

namespace tessera {

void registerDefaults(UserDefaults& defaults)
{
    defaults.registerDefaults({
        {std::string(kTooltipTypeKey), static_cast<int>(TooltipType::Full)},
        {std::string(kFolderSizesKey), true},
        {std::string(kStatusLineKey), true},
        {std::string(kWarnDeleteHiddenKey), true},
        {std::string(kWarnDeleteSystemKey), true},
    });
}

} // namespace tessera
