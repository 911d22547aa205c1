// SPDX-License-Identifier: MIT
#include "TreeView/TreeViewController.h"

#include "Layout/LevelRenderer.h"
#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "TreeView/TreeBranch.h"
#include "TreeView/TreeMapView.h"

#include <utility>
#include <variant>

namespace tessera {

TreeViewController::TreeViewController(RootModel& model, TreeMapView& treeView)
    : m_model(model)
    , m_treeView(treeView)
    , m_currentFolder(model.topFolder())
{
    m_clickObservation = NotificationCenter::defaultCenter().addObserver(
        "ClickTreeItem", [this](const NotificationObject& object) {
            File* const* clicked = std::get_if<File*>(&object);
            setSelectedFile(clicked == nullptr ? nullptr : *clicked);
            renderTree();
        });
    connect(&m_treeView, &TreeMapView::frameChanged, this, &TreeViewController::renderTree);
    renderTree();
}

TreeViewController::~TreeViewController() = default;

void TreeViewController::setCurrentFolder(Folder* folder)
{
    m_currentFolder = folder;
    NotificationCenter::defaultCenter().post(
        "CurrentFolderChanged", static_cast<const void*>(this));
}

void TreeViewController::setSelectedFile(File* file)
{
    if (m_selectedFile != nullptr) {
        m_selectedFile->setSelected(false);
    }
    m_selectedFile = file;
    if (m_selectedFile != nullptr) {
        m_selectedFile->setSelected(true);
    }
}

void TreeViewController::renderTree()
{
    m_treeView.removeAllBranches();
    const Rect bounds{
        0, 0, static_cast<double>(m_treeView.width()), static_cast<double>(m_treeView.height())};
    m_treeView.addBranch(renderFolder(m_currentFolder, bounds, nullptr, 0));
}

std::unique_ptr<TreeBranch> TreeViewController::renderFolder(
    Folder* folder, const Rect& inRect, TreeBranch* inView, long withLevel)
{
    const LevelRenderer renderer(m_model.settings().ignoreHiddenFiles());
    const auto placement
        = inView == nullptr ? LevelRenderer::Placement::Top : LevelRenderer::Placement::Nested;
    auto branch
        = TreeBranch::make(renderer.render(folder, inRect, placement, withLevel), &m_treeView);
    if (inView != nullptr) {
        inView->addSubBranch(std::move(branch));
        return nullptr;
    }
    return branch;
}

} // namespace tessera
