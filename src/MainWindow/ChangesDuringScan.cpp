// SPDX-License-Identifier: MIT
#include "MainWindow/ChangesDuringScan.h"

#include "TreeScreen/TreeViewController.h"
#include "Undo/DiskChanges.h"

#include <utility>

namespace tessera {

ChangesDuringScan::ChangesDuringScan(const DiskChanges& changes)
{
    connect(&changes, &DiskChanges::itemGone, this, [this](const Url& place) {
        m_changes.emplace_back(
            [place](TreeViewController& screen) { screen.changes().itemGone(place); });
    });
    connect(&changes, &DiskChanges::itemsMoved, this, [this](const std::vector<ItemMove>& moves) {
        m_changes.emplace_back(
            [moves](TreeViewController& screen) { screen.changes().itemsMoved(moves); });
    });
    connect(&changes, &DiskChanges::itemInDoubt, this, [this](const std::vector<Url>& places) {
        m_changes.emplace_back(
            [places](TreeViewController& screen) { screen.changes().itemInDoubt(places); });
    });
    connect(
        &changes, &DiskChanges::itemCompressed, this, [this](const std::optional<Url>& archive) {
            if (archive) {
                m_changes.emplace_back([url = *archive](TreeViewController& screen) {
                    screen.changes().itemCompressed(url);
                });
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
