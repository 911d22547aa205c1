// SPDX-License-Identifier: MIT
#include "TreeView/TreeViewController.h"

#include "Layout/LevelRenderer.h"
#include "Model/NotificationCenter.h"
#include "Model/RootModel.h"
#include "Model/Volume.h"
#include "TreeView/TreeBranch.h"
#include "TreeView/TreeMapView.h"
#include "TreeView/TreeViewServices.h"

#include <utility>
#include <variant>

namespace tessera {

TreeViewController::TreeViewController(
    RootModel& model, TreeMapView& treeView, const TreeViewServices& services)
    : m_model(model)
    , m_treeView(treeView)
    , m_fileSystem(services.fileSystem)
    , m_zoom(*this, treeView, services)
{
    setCurrentFolder(m_model.topFolder());
    observe();
    objectTreeRefreshed();
    renderTree();
}

TreeViewController::~TreeViewController() = default;

void TreeViewController::observe()
{
    connect(&m_treeView, &TreeMapView::frameChanged, this, &TreeViewController::renderTree);
    connect(&m_treeView, &TreeMapView::zoomEnded, this, &TreeViewController::animationDidStop);
    NotificationCenter& center = NotificationCenter::defaultCenter();
    m_clickObservation
        = center.addObserver("ClickTreeItem", [this](const NotificationObject& object) {
              File* const* clicked = std::get_if<File*>(&object);
              setSelectedFile(clicked == nullptr ? nullptr : *clicked);
              renderTree();
          });
    m_doubleClickObservation = center.addObserver(
        "DoubleClickTreeItem", [this](const NotificationObject&) { doubleClickTreeItem(); });
}

void TreeViewController::doubleClickTreeItem()
{
    if (m_selectedFile != nullptr && m_selectedFile->isFolder()) {
        zoomIn();
    }
}

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

void TreeViewController::zoomIn()
{
    if (auto* const folder = nodeCast<Folder>(m_selectedFile)) {
        zoomInFolder(*folder);
    }
}

void TreeViewController::zoomOut()
{
    if (m_currentFolder != nullptr && m_currentFolder->parent() != nullptr) {
        zoomOutFolder(*m_currentFolder->parent());
    }
}

void TreeViewController::clickFolderPath(const Url& clicked)
{
    Folder* folder = m_currentFolder;
    while (folder != nullptr && folder->url().path() != clicked.path()) {
        folder = folder->parent();
    }
    if (folder != nullptr && folder != m_currentFolder) {
        zoomOutFolder(*folder);
        return;
    }
    setSelectedFile(nullptr);
    renderTree();
}

void TreeViewController::objectTreeRefreshed()
{
    if (auto* const volume = nodeCast<Volume>(static_cast<File*>(m_model.topFolder()))) {
        volume->refreshVolume(m_fileSystem);
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
