// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/PreviewItem.h"
#include "QuickLook/QuickLookPanelDataSource.h"
#include "QuickLook/QuickLookPanelDelegate.h"

namespace tessera {

class TreeMapView;
class TreeViewController;

/// Lets the preview panel show the tree screen's selected item, as its one item whatever is
/// selected, and hands the panel's key presses to the screen. The shared panel is its own as long
/// as it lives. Main thread only.
class SelectionPreview final : public QuickLookPanelDataSource,
                               public QuickLookPanelDelegate,
                               private PreviewItem {
public:
    /// Both must outlive it.
    SelectionPreview(TreeViewController& controller, const TreeMapView& treeView);
    ~SelectionPreview() override;

    /// Opens the panel, or closes it when it is open.
    static void toggle();
    static void open();
    /// The panel follows, if it is open.
    static void selectionChanged();

    [[nodiscard]] int numberOfPreviewItemsInPreviewPanel() const override { return 1; }
    [[nodiscard]] const PreviewItem& previewItemAtIndex(int index) const override;
    bool handleEvent(QEvent& event) override;
    [[nodiscard]] QRectF sourceFrameOnScreenForPreviewItem(const PreviewItem& item) const override;

private:
    [[nodiscard]] Url previewItemURL() const override;
    [[nodiscard]] const File* previewItemNode() const override;

    TreeViewController& m_controller;
    const TreeMapView& m_treeView;
};

} // namespace tessera
