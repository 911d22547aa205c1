// SPDX-License-Identifier: MIT
#include "HomeScreen/Grid/CollectionHeaderView.h"

#include "Widgets/NonBlockingTextField.h"

namespace tessera {

NonBlockingTextField& CollectionHeaderView::nameLabel() const
{
    return *findChild<NonBlockingTextField*>(QStringLiteral("nameLabel"));
}

} // namespace tessera
