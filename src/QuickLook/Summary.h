// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/ItemFacts.h"
#include "QuickLook/Reading/Preview.h"

#include <QString>

#include <vector>

namespace tessera {

/// What the panel says of an item whose content it cannot or does not yet show.
struct Summary {
    struct Row {
        QString title;
        QString value;
    };

    QString name;
    std::vector<Row> rows;
    QString note; ///< why there is no more to see; empty when there is no need to say
};

/// The summary of an item before or after the look at it; `preview` is null before.
Summary summaryOf(const ItemFacts& facts, const Preview* preview);

/// One line about what is shown: "PNG image  ·  640 × 480  ·  12 KB  ·  Nov 21, 2026".
QString captionOf(const ItemFacts& facts, const Preview& preview);

} // namespace tessera
