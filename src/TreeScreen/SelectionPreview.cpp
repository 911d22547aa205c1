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
    , m_panel(&QuickLookPanel::sharedInstance())
{
    connect(m_panel, &QuickLookPanel::keyPressed, this, [this](const QKeyEvent& event) {
        m_screen.keyDown(event);
    });
    connect(m_panel, &QuickLookPanel::reopenRequested, this, &SelectionPreview::open);
}

SelectionPreview::~SelectionPreview()
{
    if (m_panel != nullptr) {
        m_panel->closeAtOnce();
    }
}

void SelectionPreview::toggle()
{
    if (m_panel != nullptr && m_panel->isOpen()) {
        m_panel->dismiss();
    } else {
        open();
    }
}

void SelectionPreview::open()
{
    if (m_panel != nullptr) {
        m_panel->open(m_screen.selectedFile(), [this] { return frameOnScreen(); });
    }
}

void SelectionPreview::selectionChanged()
{
    if (m_panel != nullptr) {
        m_panel->setItem(m_screen.selectedFile());
    }
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
