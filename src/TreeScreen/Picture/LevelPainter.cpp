// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/LevelPainter.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/DocumentPage.h"
#include "TreeScreen/Picture/FolderBox.h"
#include "TreeScreen/Picture/GroupBox.h"
#include "TreeScreen/Picture/SpaceBox.h"
#include "TreeScreen/Picture/Styles.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <vector>

namespace tessera {

namespace {

constexpr double kTextHeight = 16;

bool liesWithin(const Rect& inner, const Rect& outer)
{
    return inner.x >= outer.x && inner.y >= outer.y && inner.right() <= outer.right()
        && inner.bottom() <= outer.bottom();
}

/// The branches two levels down lie on boxes of their own, inside those one level down; what is
/// below them need not be painted.
std::vector<Rect> coveredParts(const TreeBranch* nested)
{
    std::vector<Rect> covered;
    if (nested != nullptr) {
        for (const auto& branch : nested->subBranches()) {
            covered.push_back(branch->frame().translated(nested->frame().x, nested->frame().y));
        }
    }
    return covered;
}

/// `nested` is the branch inside the box, or null.
void paintNode(
    BoxCanvas& canvas,
    const File& node,
    const Rect& rect,
    long level,
    const TreeBranch* nested,
    FolderTitles titles)
{
    switch (node.type()) {
    case NodeType::Folder:
    case NodeType::TopFolder:
    case NodeType::Volume:
        paintFolderBox(
            canvas, static_cast<const Folder&>(node), rect, level, coveredParts(nested), titles);
        break;
    case NodeType::Document:
        paintDocumentPage(canvas, static_cast<const Document&>(node), rect, level);
        break;
    case NodeType::FreeSpace:
        paintFreeSpaceBox(canvas, node, rect);
        break;
    case NodeType::Unknown:
    case NodeType::TimeMachine:
        paintUnaccountedBox(canvas, node, rect, level);
        break;
    case NodeType::File:
        break;
    }
}

void paintBox(
    BoxCanvas& canvas,
    const LayoutObject& item,
    long level,
    const TreeBranch* nested,
    FolderTitles titles)
{
    if (item.ref != nullptr) {
        paintNode(canvas, *item.ref, item.rect, level, nested, titles);
    } else if (const auto* group = dynamic_cast<const MultiLayoutObject*>(&item)) {
        paintGroupBox(canvas, *group, level);
    }
}

} // namespace

void paintLevel(BoxCanvas& canvas, const TreeBranch& branch, FolderTitles titles)
{
    // Nested branches come in the order of the folders that they lie in.
    auto nested = branch.subBranches().begin();
    for (const auto& item : branch.layoutItems()) {
        const bool hasNested
            = nested != branch.subBranches().end() && liesWithin((*nested)->frame(), item->rect);
        const TreeBranch* inside = hasNested ? (nested++)->get() : nullptr;
        if (!canvas.misses(item->rect)) {
            paintBox(canvas, *item, branch.level(), inside, titles);
        }
    }
    if (!branch.textWithoutBoxes().empty()) {
        const Rect& frame = branch.frame();
        const Rect line{0, (frame.height - kTextHeight) / 2, frame.width, kTextHeight};
        canvas.drawText(branch.textWithoutBoxes(), line, Styles::selectedTextAttributes());
    }
}

} // namespace tessera
