// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QRectF>

namespace tessera {

class QuickLookPanel;
class TreeMapView;
class TreeScreen;

/// Lets the preview panel show the tree screen's selected item, and hands the panel's key presses
/// to the screen. The shared panel is its own as long as both live. Main thread only.
class SelectionPreview final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    SelectionPreview(TreeScreen& screen, const TreeMapView& treeView);
    ~SelectionPreview() override;

    /// Opens the panel, or closes it when it is open.
    void toggle();
    void open();
    /// The panel follows, if it is open.
    void selectionChanged();

private:
    QRectF frameOnScreen() const;

    TreeScreen& m_screen;
    const TreeMapView& m_treeView;
    const QPointer<QuickLookPanel> m_panel;
};

} // namespace tessera
