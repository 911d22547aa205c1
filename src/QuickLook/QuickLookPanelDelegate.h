// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

class QEvent;

namespace tessera {

class PreviewItem;

/// The screen that the preview panel belongs to. Main thread only.
class QuickLookPanelDelegate {
public:
    QuickLookPanelDelegate() = default;
    QuickLookPanelDelegate(const QuickLookPanelDelegate&) = delete;
    QuickLookPanelDelegate& operator=(const QuickLookPanelDelegate&) = delete;
    virtual ~QuickLookPanelDelegate() = default;

    /// Takes an event that reached the panel and that the panel has no use for; false when the
    /// screen has none either.
    virtual bool handleEvent(QEvent& event) = 0;

    /// Where the item is drawn, in points of the screen: the panel grows out of it and shrinks
    /// back into it. Empty when it is nowhere to be seen.
    [[nodiscard]] virtual QRectF sourceFrameOnScreenForPreviewItem(
        const PreviewItem& item) const = 0;
};

} // namespace tessera
