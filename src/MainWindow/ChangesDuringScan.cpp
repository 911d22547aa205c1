// SPDX-License-Identifier: MIT
#include "MainWindow/ChangesDuringScan.h"

#include "TreeScreen/DiskChanges.h"
#include "TreeScreen/TreeViewController.h"

#include <utility>

namespace tessera {

ChangesDuringScan::ChangesDuringScan(const DiskChanges& changes)
{
    connect(&changes, &DiskChanges::itemGone, this, [this](const Url& place) {
        m_changes.emplace_back([place](TreeViewController& screen) { screen.itemGone(place); });
    });
    connect(
        &changes, &DiskChanges::itemCompressed, this, [this](const std::optional<Url>& archive) {
            if (archive) {
                m_changes.emplace_back(
                    [url = *archive](TreeViewController& screen) { screen.itemCompressed(url); });
            }
        });
}

void ChangesDuringScan::tell(TreeViewController& screen)
{
    for (const auto& change : std::exchange(m_changes, {})) {
        change(screen);
    }
}

} // namespace tessera
