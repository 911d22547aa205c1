// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/TreeBranch.h"

#include "Layout/LevelRenderer.h"
#include "Model/TopFolder.h"

#include <QCoreApplication>

#include <algorithm>
#include <system_error>

namespace tessera {

namespace {

struct TreeBranchTexts {
    Q_DECLARE_TR_FUNCTIONS(TreeBranchTexts)
};

/// What the scan could not list it for; null when it could, or its name was one too many.
const UnreadableFolder* asUnreadable(const Folder& folder)
{
    const Folder* root = &folder;
    while (root->parent() != nullptr) {
        root = root->parent();
    }
    const auto* const top = nodeCast<TopFolder>(static_cast<const File*>(root));
    if (top == nullptr) {
        return nullptr;
    }
    const auto& unreadable = top->findings().unreadable();
    const auto found = std::ranges::find(unreadable, &folder, &UnreadableFolder::node);
    return found == unreadable.end() ? nullptr : &*found;
}

/// A black picture without a word looks like a failure.
QString whyThereAreNoBoxes(const Folder& folder)
{
    if (const UnreadableFolder* const unreadable = asUnreadable(folder)) {
        const bool isForbidden = unreadable->reason == std::errc::permission_denied
            || unreadable->reason == std::errc::operation_not_permitted;
        return isForbidden
            ? TreeBranchTexts::tr("You may not look into this folder. See Frequently Asked "
                                  "Questions in the Help menu.")
            : TreeBranchTexts::tr("This folder could not be read. Rescan it to try again.");
    }
    return folder.children().empty()
        ? TreeBranchTexts::tr("This folder is empty. Rescan it when something has come.")
        : TreeBranchTexts::tr("Everything in this folder is left out of the picture. The Ignore "
                              "menu brings it back.");
}

} // namespace

TreeBranch::TreeBranch(const Rect& frame)
    : m_frame(frame)
{
}

std::unique_ptr<TreeBranch> TreeBranch::make(RenderedLevel level)
{
    auto branch = std::make_unique<TreeBranch>(level.frame);
    branch->setLevel(level.level);
    if (level.folder != nullptr) {
        branch->setName(std::string(level.folder->name()));
    }
    if (level.level == 0 && level.folder != nullptr && level.layoutItems.empty()) {
        branch->m_textWithoutBoxes = whyThereAreNoBoxes(*level.folder).toStdString();
    }
    branch->setLayoutItems(std::move(level.layoutItems));
    for (RenderedLevel& nested : level.nested) {
        branch->addSubBranch(make(std::move(nested)));
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

} // namespace tessera
