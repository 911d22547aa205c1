// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeClicks.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/SelectionPreview.h"
#include "TreeScreen/TreeCommandTarget.h"
#include "TreeScreen/TreeMenu.h"

#include <QMenu>

namespace tessera {

TreeClicks::TreeClicks(
    TreeMapView& treeView,
    TreeScreen& screen,
    TreeCommandTarget& commands,
    SelectionPreview& preview,
    const CommandActions* actions)
    : m_screen(screen)
    , m_commands(commands)
    , m_preview(preview)
    , m_actions(actions)
{
    connect(&treeView, &TreeMapView::clickTreeItem, this, &TreeClicks::select);
    // The click has selected what it is on.
    connect(&treeView, &TreeMapView::doubleClickTreeItem, this, &TreeClicks::openSelected);
    connect(&treeView, &TreeMapView::menuRequested, this, &TreeClicks::showMenu);
}

TreeClicks::~TreeClicks() = default;

void TreeClicks::select(File& node)
{
    m_screen.setSelectedFile(&node);
    m_screen.renderTree();
}

void TreeClicks::openSelected()
{
    File* const selected = m_screen.selectedFile();
    if (nodeCast<Folder>(selected) != nullptr) {
        m_commands.perform(Command::ZoomIn);
    } else if (nodeCast<Document>(selected) != nullptr) {
        m_preview.open();
    }
}

void TreeClicks::showMenu(const File& node, QPoint onScreen)
{
    if (m_actions == nullptr) {
        return;
    }
    m_menu.reset(makeTreeMenu(node, *m_actions).release());
    if (m_menu != nullptr) {
        m_menu->popup(onScreen);
    }
}

} // namespace tessera
