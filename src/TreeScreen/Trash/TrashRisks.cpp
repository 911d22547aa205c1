// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/TrashRisks.h"

#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/UserDefaults.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tessera {

TrashRisks::TrashRisks(const RootModel& model, const UserDefaults& defaults)
    : m_model(model)
    , m_defaults(defaults)
{
}

bool TrashRisks::isInSystemFolder(const File& item) const
{
    const std::string text = placeOnDisk(item).absoluteString();
    const std::vector<std::string>& safe = m_model.nonSystemFolders();
    return m_defaults.boolean(kWarnDeleteSystemKey)
        && std::none_of(safe.begin(), safe.end(), [&text](const std::string& folder) {
               return text.starts_with(folder);
           });
}

bool TrashRisks::isHidden(const File& item) const
{
    if (!m_defaults.boolean(kWarnDeleteHiddenKey)) {
        return false;
    }
    const File* const top = m_model.topFolder();
    for (const File* at = &item; at != nullptr && at != top; at = at->parent()) {
        if (at->hidden()) {
            return true;
        }
    }
    return false;
}

} // namespace tessera
