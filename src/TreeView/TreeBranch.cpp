// SPDX-License-Identifier: MIT
#include "TreeView/TreeBranch.h"

#include "TreeView/TreeMapView.h"

#include <algorithm>

namespace tessera {

TreeBranch::TreeBranch(const Rect& frame)
    : m_frame(frame)
{
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

void TreeBranch::cursorUpdate()
{
    if (m_treeView != nullptr) {
        m_treeView->setCursor(this);
    }
}

} // namespace tessera
