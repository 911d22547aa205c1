// SPDX-License-Identifier: MIT
#include "TreeScreen/SelectionPreview.h"

#include "Model/File.h"
#include "Model/NodeLookup.h"
#include "QuickLook/QuickLookPanel.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"

#include <QKeyEvent>

#include <optional>

namespace tessera {

SelectionPreview::SelectionPreview(TreeViewController& controller, const TreeMapView& treeView)
    : m_controller(controller)
    , m_treeView(treeView)
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    panel.setDataSource(this);
    panel.setDelegate(this);
}

SelectionPreview::~SelectionPreview()
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    panel.setDelegate(nullptr);
    panel.setDataSource(nullptr);
}

void SelectionPreview::toggle()
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    if (panel.isOpen()) {
        panel.orderOut();
    } else {
        panel.makeKeyAndOrderFront();
    }
}

void SelectionPreview::open()
{
    QuickLookPanel::sharedInstance().makeKeyAndOrderFront();
}

void SelectionPreview::selectionChanged()
{
    QuickLookPanel::sharedInstance().reloadData();
}

const PreviewItem& SelectionPreview::previewItemAtIndex(int /*index*/) const
{
    return *this;
}

bool SelectionPreview::handleEvent(QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    m_controller.keyDown(static_cast<QKeyEvent&>(event));
    return true;
}

QRectF SelectionPreview::sourceFrameOnScreenForPreviewItem(const PreviewItem& /*item*/) const
{
    const File* const selected = m_controller.selectedFile();
    if (selected == nullptr || m_treeView.branches().empty()) {
        return {};
    }
    const std::optional<Rect> box
        = m_treeView.findRectForFile(*selected, *m_treeView.branches().front());
    if (!box) {
        return {};
    }
    return {m_treeView.mapToGlobal(QPointF(box->x, box->y)), QSizeF(box->width, box->height)};
}

Url SelectionPreview::previewItemURL() const
{
    const File* const selected = m_controller.selectedFile();
    return selected == nullptr ? Url() : placeOnDisk(*selected);
}

const File* SelectionPreview::previewItemNode() const
{
    return m_controller.selectedFile();
}

} // namespace tessera
