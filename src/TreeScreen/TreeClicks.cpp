// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeClicks.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/SelectionPreview.h"
#include "TreeScreen/TreeCommandTarget.h"
#include "TreeScreen/TreeMenu.h"
#include "Widgets/ItemDrag.h"

#include <QDrag>
#include <QImage>
#include <QMenu>
#include <QPixmap>

#include <optional>

namespace tessera {

namespace {

constexpr QSize kMostOfDraggedBox(160, 100); ///< points

/// Its box in the picture, made small enough not to hide where it is dragged to.
QPixmap pictureOfBox(TreeMapView& treeView, const File& node)
{
    const std::optional<Rect> box = treeView.findRectForFile(node);
    if (!box) {
        return {};
    }
    const double scale = treeView.picture().devicePixelRatio();
    const QRectF inPixels(box->x * scale, box->y * scale, box->width * scale, box->height * scale);
    QImage image = treeView.picture().copy(inPixels.toAlignedRect());
    const QSize most = kMostOfDraggedBox * scale;
    if (image.width() > most.width() || image.height() > most.height()) {
        image = image.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    image.setDevicePixelRatio(scale);
    return QPixmap::fromImage(image);
}

} // namespace

TreeClicks::TreeClicks(
    TreeMapView& treeView,
    TreeScreen& screen,
    TreeCommandTarget& commands,
    SelectionPreview& preview,
    const CommandActions* actions)
    : m_treeView(treeView)
    , m_screen(screen)
    , m_commands(commands)
    , m_preview(preview)
    , m_actions(actions)
{
    connect(&treeView, &TreeMapView::clickTreeItem, this, &TreeClicks::select);
    connect(&treeView, &TreeMapView::clickSpace, this, &TreeClicks::spaceClicked);
    // The click has selected what it is on.
    connect(&treeView, &TreeMapView::doubleClickTreeItem, this, &TreeClicks::openSelected);
    connect(&treeView, &TreeMapView::menuRequested, this, &TreeClicks::showMenu);
    connect(&treeView, &TreeMapView::dragBegun, this, &TreeClicks::drag);
}

TreeClicks::~TreeClicks() = default;

void TreeClicks::select(File& node)
{
    m_screen.setSelectedFile(&node);
    m_screen.renderTree();
}

/// Only this program takes what is dragged. To others, which might move the file, it says nothing.
void TreeClicks::drag(const File& node)
{
    // While it lasts, this screen may end, the window not.
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): Qt deletes it when it is over
    auto* const drag = new QDrag(m_treeView.window());
    drag->setMimeData(mimeDataOfItem(node.absolutePath()));
    drag->setPixmap(pictureOfBox(m_treeView, node));
    drag->exec(Qt::LinkAction);
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
