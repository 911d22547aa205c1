// SPDX-License-Identifier: MIT
#include "TreeView/TreeMapView.h"

#include <QToolTip>

namespace tessera {

void TreeMapView::hideTooltip()
{
    QToolTip::hideText();
}

} // namespace tessera
