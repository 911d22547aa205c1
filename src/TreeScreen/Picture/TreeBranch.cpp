// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/TreeBranch.h"

#include "Base/NotificationCenter.h"
#include "Layout/LevelRenderer.h"
#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/DocumentPage.h"
#include "TreeScreen/Picture/FolderBox.h"
#include "TreeScreen/Picture/GroupBox.h"
#include "TreeScreen/Picture/SpaceBox.h"
#include "TreeScreen/Picture/Styles.h"
#include "TreeScreen/Picture/TreePainter.h"
#include "TreeScreen/TreeMenu.h"

#include <QCoreApplication>
#include <QMenu>

#include <algorithm>

namespace tessera {

namespace {

constexpr double kTextHeight = 16;

bool liesWithin(const Rect& inner, const Rect& outer)
{
    return inner.x >= outer.x && inner.y >= outer.y && inner.right() <= outer.right()
        && inner.bottom() <= outer.bottom();
}

struct TreeBranchTexts {
    Q_DECLARE_TR_FUNCTIONS(TreeBranchTexts)
};

/// A black picture without a word looks like a failure.
QString whyThereAreNoBoxes(const Folder& folder)
{
    return folder.children().empty()
        ? TreeBranchTexts::tr("This folder is empty")
        : TreeBranchTexts::tr("Everything in this folder is left out of the picture");
}

void select(File& node)
{
    if (!node.selected()) {
        node.setSelected(true);
        NotificationCenter::defaultCenter().post("ClickTreeItem", &node);
    }
}

} // namespace

TreeBranch::TreeBranch(const Rect& frame)
    : m_frame(frame)
{
}

std::unique_ptr<TreeBranch> TreeBranch::make(RenderedLevel level, TreeMapView* treeView)
{
    auto branch = std::make_unique<TreeBranch>(level.frame);
    branch->setTreeView(treeView);
    branch->setLevel(level.level);
    if (level.folder != nullptr) {
        branch->setName(std::string(level.folder->name()));
    }
    if (level.level == 0 && level.folder != nullptr && level.layoutItems.empty()) {
        branch->m_textWithoutBoxes = whyThereAreNoBoxes(*level.folder).toStdString();
    }
    branch->setLayoutItems(std::move(level.layoutItems));
    for (RenderedLevel& nested : level.nested) {
        branch->addSubBranch(make(std::move(nested), treeView));
    }
    return branch;
}

void TreeBranch::addSubBranch(std::unique_ptr<TreeBranch> branch)
{
    branch->m_parentBranch = this;
    m_subBranches.push_back(std::move(branch));
}

void TreeBranch::setLayoutItems(std::vector<std::unique_ptr<LayoutObject>> items)
{
    m_layoutItems = std::move(items);
}

Point TreeBranch::originInTreeView() const
{
    Point origin;
    for (const TreeBranch* branch = this; branch != nullptr; branch = branch->m_parentBranch) {
        origin.x += branch->m_frame.x;
        origin.y += branch->m_frame.y;
    }
    return origin;
}

Point TreeBranch::convertFromTreeView(Point inTreeView) const
{
    const Point origin = originInTreeView();
    return {inTreeView.x - origin.x, inTreeView.y - origin.y};
}

Rect TreeBranch::convertToTreeView(const Rect& inBranch) const
{
    const Point origin = originInTreeView();
    return inBranch.translated(origin.x, origin.y);
}

TreeBranch* TreeBranch::branchAt(Point inTreeView)
{
    const Point origin = originInTreeView();
    Point inBranch{inTreeView.x - origin.x, inTreeView.y - origin.y};
    if (!Rect{0, 0, m_frame.width, m_frame.height}.contains(inBranch)) {
        return nullptr;
    }
    TreeBranch* deepest = this;
    while (true) {
        const auto& nested = deepest->m_subBranches;
        const auto hit = std::find_if(nested.rbegin(), nested.rend(), [&](const auto& branch) {
            return branch->m_frame.contains(inBranch);
        });
        if (hit == nested.rend()) {
            return deepest;
        }
        deepest = hit->get();
        inBranch = {inBranch.x - deepest->m_frame.x, inBranch.y - deepest->m_frame.y};
    }
}

void TreeBranch::draw(QPainter& painter) const
{
    paintBranch(*this, painter);
}

void TreeBranch::draw(BoxCanvas& canvas) const
{
    // Nested branches come in the order of the folders that they lie in.
    auto nested = m_subBranches.begin();
    for (const auto& item : m_layoutItems) {
        const bool hasNested
            = nested != m_subBranches.end() && liesWithin((*nested)->frame(), item->rect);
        const TreeBranch* inside = hasNested ? (nested++)->get() : nullptr;
        if (!canvas.misses(item->rect)) {
            drawItem(canvas, *item, inside);
        }
    }
    if (!m_textWithoutBoxes.empty()) {
        const Rect line{0, (m_frame.height - kTextHeight) / 2, m_frame.width, kTextHeight};
        canvas.drawText(m_textWithoutBoxes, line, Styles::selectedTextAttributes());
    }
}

void TreeBranch::drawItem(
    BoxCanvas& canvas, const LayoutObject& item, const TreeBranch* nested) const
{
    if (item.ref == nullptr) {
        if (const auto* group = dynamic_cast<const MultiLayoutObject*>(&item)) {
            paintGroupBox(canvas, *this, *group);
        }
        return;
    }
    switch (item.ref->type()) {
    case NodeType::Folder:
    case NodeType::TopFolder:
    case NodeType::Volume:
        paintFolderBox(canvas, *this, static_cast<const Folder&>(*item.ref), item.rect, nested);
        break;
    case NodeType::Document:
        paintDocumentPage(canvas, *this, static_cast<const Document&>(*item.ref), item.rect);
        break;
    case NodeType::FreeSpace:
        paintFreeSpaceBox(canvas, *item.ref, item.rect);
        break;
    case NodeType::Unknown:
    case NodeType::TimeMachine:
        paintUnaccountedBox(canvas, *this, *item.ref, item.rect);
        break;
    case NodeType::File:
        break;
    }
}

void TreeBranch::mouseUp(Point inTreeView, int clickCount)
{
    File* node = clickableAt(inTreeView);
    if (node == nullptr) {
        return;
    }
    select(*node);
    if (clickCount == 2) {
        NotificationCenter::defaultCenter().post("DoubleClickTreeItem");
    }
}

std::unique_ptr<QMenu> TreeBranch::menuForEvent(Point inTreeView, TreeCommandTarget* target)
{
    File* node = clickableAt(inTreeView);
    if (node == nullptr) {
        return nullptr;
    }
    if (m_treeView != nullptr) {
        m_treeView->hideTooltip();
    }
    select(*node);
    return makeTreeMenu(*node, target);
}

File* TreeBranch::clickableAt(Point inTreeView) const
{
    const Point point = convertFromTreeView(inTreeView);
    const auto hit
        = std::find_if(m_layoutItems.begin(), m_layoutItems.end(), [&](const auto& item) {
              return item->ref != nullptr && item->rect.contains(point);
          });
    if (hit == m_layoutItems.end()) {
        return nullptr;
    }
    File* node = (*hit)->ref;
    return node->isFolder() || node->type() == NodeType::Document ? node : nullptr;
}

void TreeBranch::cursorUpdate()
{
    if (m_treeView != nullptr) {
        m_treeView->setCursor(this);
    }
}

} // namespace tessera
