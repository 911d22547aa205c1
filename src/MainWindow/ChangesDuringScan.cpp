// SPDX-License-Identifier: MIT
#include "MainWindow/ChangesDuringScan.h"

namespace tessera {

ChangesDuringScan::ChangesDuringScan()
{
    m_observations.push_back(observe("ItemGone"));
    m_observations.push_back(observe("ItemCompressed"));
}

Observation ChangesDuringScan::observe(const std::string& name)
{
    return NotificationCenter::defaultCenter().addObserver(
        name,
        [this, name](const NotificationObject& object) { m_changes.emplace_back(name, object); });
}

void ChangesDuringScan::tellAgain()
{
    for (const auto& [name, object] : std::exchange(m_changes, {})) {
        NotificationCenter::defaultCenter().post(name, object);
    }
    m_changes.clear();
}

} // namespace tessera
