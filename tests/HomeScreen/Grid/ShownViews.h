// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Grid/SectionedCollectionView.h"

#include <vector>

namespace tessera::test {

/// The headers and items of the grid in the order in which they are shown.
inline std::vector<QWidget*> shownViews(const SectionedCollectionView& grid)
{
    std::vector<QWidget*> views;
    for (const CollectionSection& section : grid.sections()) {
        views.push_back(section.header.get());
        for (const auto& item : section.items) {
            views.push_back(item.get());
        }
    }
    return views;
}

} // namespace tessera::test
