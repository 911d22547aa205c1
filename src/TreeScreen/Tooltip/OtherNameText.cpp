// SPDX-License-Identifier: MIT
#include "TreeScreen/Tooltip/OtherNameText.h"

#include "Base/DisplayText.h"
#include "Language/PluralNumber.h"
#include "Model/File.h"
#include "Model/NodeLookup.h"

#include <QCoreApplication>
#include <QLocale>

namespace tessera {

QString otherNameText(const File& node)
{
    if (node.totalAllocation() != 0) {
        return {};
    }
    const auto linked = linkedNameOf(node);
    if (!linked || linked->countedAt == &node) {
        return {};
    }
    return QCoreApplication::translate(
               "TooltipController",
               "one of %1 names of a file that is counted at %2",
               nullptr,
               pluralNumber(linked->linkCount))
        .arg(QLocale().toString(linked->linkCount), displayText(linked->countedAt->absolutePath()));
}

} // namespace tessera
