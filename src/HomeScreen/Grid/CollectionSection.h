// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/Grid/CollectionItemView.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace tessera {

/// What a SectionedCollectionView shows as one section: a header and, below it, items that are all
/// of one height. Both keep their own height.
struct CollectionSection {
    std::unique_ptr<QWidget> header;
    std::vector<std::unique_ptr<CollectionItemView>> items;
    /// Stands below the header while there are no items, as high as it needs to be; may be null.
    std::unique_ptr<QWidget> placeholder = nullptr;

    /// Of an item, in points. Single precision, in which the places of the items are reckoned.
    float minimumWidth = 0;
    float maximumWidth = 0; ///< 0 or less: there is no limit
};

} // namespace tessera
