// SPDX-License-Identifier: MIT
#include "Shell/CollectionHeaderView.h"

#include "Shell/NonBlockingTextField.h"

namespace tessera {

NonBlockingTextField& CollectionHeaderView::nameLabel() const
{
    return *findChild<NonBlockingTextField*>(QStringLiteral("nameLabel"));
}

} // namespace tessera
