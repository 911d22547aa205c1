// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/DockTile.h"
#include "ScanScreen/DockImage.h"

#include <vector>

namespace tessera::test {

/// A dock tile that writes down what it is to show.
class FakeDockTile final : public DockTile {
public:
    void setContentView(DockImage& view) override { contentView = &view; }

    void removeContentView(const DockImage& view) override
    {
        if (contentView == &view) {
            contentView = nullptr;
        }
    }

    void display() override { displayed.push_back(contentView->percent()); }
    void requestAttention() override { ++attentionCount; }

    DockImage* contentView = nullptr; ///< null: the standard icon
    std::vector<double> displayed; ///< the fraction at each display()
    int attentionCount = 0;
};

} // namespace tessera::test
