// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tessera {

class CollectionItemView;

/// Who is told what the user does in a SectionedCollectionView. A message left empty is one that
/// the delegate does not answer; see there what then happens.
struct SectionedCollectionViewDelegate {
    using Message = std::function<void(CollectionItemView& view, int section, int index)>;

    Message didSelectView; ///< a single click
    Message didDeselectView; ///< the selected view is selected no more, or clicked again
    Message didDoubleClickView; ///< a click with a click count of 2 or more
};

} // namespace tessera
