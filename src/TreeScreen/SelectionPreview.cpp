// SPDX-License-Identifier: MIT
#include "TreeScreen/SelectionPreview.h"

#include "Model/File.h"
#include "QuickLook/QuickLookPanel.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Map/TreeScreen.h"

#include <QKeyEvent>

#include <optional>

namespace tessera {

SelectionPreview::SelectionPreview(TreeScreen& screen, const TreeMapView& treeView)
    : m_screen(screen)
    , m_treeView(treeView)
{
    const QuickLookPanel* const panel = &QuickLookPanel::sharedInstance();
    connect(panel, &QuickLookPanel::keyPressed, this, [this](const QKeyEvent& event) {
        m_screen.keyDown(event);
    });
    connect(panel, &QuickLookPanel::reopenRequested, this, &SelectionPreview::open);
}

SelectionPreview::~SelectionPreview()
{
    QuickLookPanel::sharedInstance().closeAtOnce();
}

void SelectionPreview::toggle()
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    if (panel.isOpen()) {
        panel.dismiss();
    } else {
        open();
    }
}

void SelectionPreview::open()
{
    QuickLookPanel::sharedInstance().open(
        m_screen.selectedFile(), [this] { return frameOnScreen(); });
}

void SelectionPreview::selectionChanged()
{
    QuickLookPanel::sharedInstance().setItem(m_screen.selectedFile());
}

QRectF SelectionPreview::frameOnScreen() const
{
    const File* const selected = m_screen.selectedFile();
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

} // namespace tessera
