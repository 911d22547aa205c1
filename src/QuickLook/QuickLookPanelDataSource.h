// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class PreviewItem;

/// Tells the preview panel what to show. Main thread only.
class QuickLookPanelDataSource {
public:
    QuickLookPanelDataSource() = default;
    QuickLookPanelDataSource(const QuickLookPanelDataSource&) = delete;
    QuickLookPanelDataSource& operator=(const QuickLookPanelDataSource&) = delete;
    virtual ~QuickLookPanelDataSource() = default;

    [[nodiscard]] virtual int numberOfPreviewItemsInPreviewPanel() const = 0;

    /// The item must live as long as the data source.
    [[nodiscard]] virtual const PreviewItem& previewItemAtIndex(int index) const = 0;
};

} // namespace tessera
