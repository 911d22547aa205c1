// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeViewController.h"

#include "Base/DisplayText.h"
#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "Layout/LevelRenderer.h"
#include "Model/Document.h"
#include "Model/FileSystemAttributes.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/Volume.h"
#include "Scanning/ResourceValues.h"
#include "TreeScreen/DiskChanges.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewServices.h"

#include <QPointer>

#include <optional>
#include <utility>
#include <variant>

namespace tessera {

TreeViewController::TreeViewController(
    RootModel& model,
    TreeMapView& treeView,
    const TreeViewServices& services,
    const CommandActions* actions)
    : m_model(model)
    , m_treeView(treeView)
    , m_services(services)
    , m_zoom(*this, treeView, services.motion, services.zoomClock)
    , m_rescan(services.scanEnvironment, services.checkFolder, treeView, services.alert, *this)
    , m_trasher(
          model, services.defaults, services.workspace, services.alert, services.diskChanges, *this)
    , m_preview(*this, treeView)
    , m_note(&treeView)
    , m_clicks(treeView, *this, *this, m_preview, actions)
{
    setCurrentFolder(m_model.topFolder());
    observeTreeView();
    observe();
    objectTreeRefreshed();
    renderTree();
}

TreeViewController::~TreeViewController() = default;

void TreeViewController::observeTreeView()
{
    m_treeView.installEventFilter(this);
    connect(&m_treeView, &TreeMapView::frameChanged, this, &TreeViewController::renderTree);
    connect(&m_treeView, &TreeMapView::zoomEnded, this, &TreeViewController::animationDidStop);
    connect(&m_treeView, &TreeMapView::menuKeyInVain, this, [this] {
        m_note.say(command_hint::nothingSelected());
    });
}

void TreeViewController::observe()
{
    const DiskChanges& changes = m_services.diskChanges;
    connect(&changes, &DiskChanges::itemGone, this, &TreeViewController::itemGone);
    connect(
        &changes, &DiskChanges::itemCompressed, this, [this](const std::optional<Url>& archive) {
            if (archive) {
                itemCompressed(*archive);
            }
        });
}

void TreeViewController::setCurrentFolder(Folder* folder)
{
    m_currentFolder = folder;
    m_isMountPoint.reset();
    emit currentFolderChanged();
}

void TreeViewController::setSelectedFile(File* file)
{
    if (m_selectedFile != nullptr) {
        m_selectedFile->setSelected(false);
    }
    m_selectedFile = file;
    m_isMountPoint.reset();
    if (m_selectedFile != nullptr) {
        m_selectedFile->setSelected(true);
    }
    m_preview.selectionChanged();
    emit selectionChanged();
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

void TreeViewController::zoomInFolder(Folder& folder)
{
    m_zoom.zoomInFolder(folder);
    m_rescan.pictureChanged();
}

void TreeViewController::zoomOutFolder(Folder& ancestor)
{
    m_zoom.zoomOutFolder(ancestor);
    m_rescan.pictureChanged();
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

void TreeViewController::trashItem()
{
    if (m_selectedFile != nullptr) {
        m_trasher.trash(*m_selectedFile);
    }
}

Folder* TreeViewController::folderToRescan() const
{
    return m_selectedFile == nullptr ? m_currentFolder : nodeCast<Folder>(m_selectedFile);
}

RescanObstacle TreeViewController::rescanObstacle() const
{
    if (m_rescan.rescanFolder() != nullptr) {
        return RescanObstacle::AnotherRescan;
    }
    const Folder* const folder = folderToRescan();
    return folder != nullptr && isMountPoint(*folder) ? RescanObstacle::MountPoint
                                                      : RescanObstacle::None;
}

/// Asked once for each choice of the user's, and not whenever the picture is rebuilt, as all along
/// while the window is resized.
bool TreeViewController::isMountPoint(const Folder& toRescan) const
{
    // A scan leaves mount points empty. That with the user's home has what a second scan found.
    if (toRescan.parent() == nullptr || !toRescan.children().empty()) {
        return false;
    }
    if (!m_isMountPoint) {
        m_isMountPoint = m_services.resourceValues->isMountPoint(toRescan.absolutePath());
    }
    return *m_isMountPoint;
}

void TreeViewController::refreshFolder()
{
    if (validate(Command::Rescan)) {
        rescanSelectedFolder(*folderToRescan());
        setSelectedFile(nullptr);
    }
}

void TreeViewController::quickLook()
{
    m_preview.open();
}

void TreeViewController::showInFinder()
{
    if (m_selectedFile == nullptr) {
        return;
    }
    const QString name = displayText(m_selectedFile->name());
    m_services.workspace.reveal(
        m_selectedFile->url(), [self = QPointer<TreeViewController>(this), name](bool isShown) {
            if (self != nullptr && !isShown) {
                self->sayThatThereIsNoFileManager(name);
            }
        });
}

void TreeViewController::sayThatThereIsNoFileManager(const QString& itemName)
{
    m_services.alert.beginSheet(
        {tr("There is no file manager"),
         tr("'%1' cannot be shown, because the desktop offers no program for that.").arg(itemName),
         {tr("OK")}});
}

void TreeViewController::compressItem()
{
    if (m_selectedFile == nullptr || !isItem(*m_selectedFile)) {
        return;
    }
    const auto compressing = CompressWindowController::make(m_services.compressing);
    // It may end when this screen is gone.
    connect(
        compressing.get(),
        &CompressWindowController::itemGone,
        &m_services.diskChanges,
        &DiskChanges::itemGone);
    connect(
        compressing.get(),
        &CompressWindowController::itemCompressed,
        &m_services.diskChanges,
        &DiskChanges::itemCompressed);
    compressing->showWindow(m_treeView.window());
    compressing->compressURL(placeOnDisk(*m_selectedFile), m_selectedFile->totalAllocation());
}

void TreeViewController::itemGone(const Url& place)
{
    const TopFolder* const top = m_model.topFolder();
    if (top == nullptr) {
        return;
    }
    const std::string path = pathInTree(*top, place.path());
    m_rescan.pathWentAway(path);
    if (path != top->absolutePath() && removeNodeAt(path)) {
        objectTreeRefreshed();
        renderTree();
    }
}

void TreeViewController::itemCompressed(const Url& archive)
{
    auto document = makeNode<Document>(archive.lastPathComponent());
    document->setTotalAllocation(
        m_services.resourceValues->allocatedSize(archive.path()).value_or(0));
    if (TopFolder* const top = m_model.topFolder()) {
        const std::string path = pathInTree(*top, archive.path());
        if (Folder* const parent = parentAtPath(*top, path)) {
            // A rescan meanwhile may have met it.
            removeNodeAt(path);
            nodeCame(parent->insertChild(std::move(document)));
        }
    }
    objectTreeRefreshed();
    renderTree();
}

CommandContext TreeViewController::commandContext() const
{
    CommandContext context;
    context.hasTreeScreen = true;
    context.isRootInView = m_currentFolder == m_model.topFolder();
    context.selectedFile = m_selectedFile;
    context.canRescan = folderToRescan() != nullptr && rescanObstacle() == RescanObstacle::None;
    return context;
}

bool TreeViewController::validate(Command command) const
{
    return isEnabled(command, commandContext());
}

QString TreeViewController::whyNot(Command command) const
{
    if (validate(command)) {
        return {};
    }
    if (command == Command::ZoomOut) {
        return m_currentFolder == nullptr ? QString()
                                          : command_hint::nothingAround(*m_currentFolder);
    }
    return command_hint::whyNot(command, folderToRescan(), rescanObstacle());
}

void TreeViewController::say(const QString& why)
{
    if (!why.isEmpty()) {
        m_note.say(why);
    }
}

void TreeViewController::perform(Command command)
{
    switch (command) {
    case Command::Open:
        m_clicks.openSelected();
        break;
    case Command::QuickLook:
        m_preview.toggle();
        break;
    case Command::ShowInFinder:
        showInFinder();
        break;
    case Command::ZoomIn:
        zoomIn();
        break;
    case Command::ZoomOut:
        zoomOut();
        break;
    case Command::Compress:
        compressItem();
        break;
    case Command::MoveToTrash:
        trashItem();
        break;
    case Command::Ignore:
        emit ignoreRequested();
        break;
    default:
        break;
    }
}

bool TreeViewController::removeNodeAt(std::string_view path)
{
    File* const found = nodeAtPath(*m_model.topFolder(), path);
    if (found == nullptr) {
        return false;
    }
    nodeWillLeave(*found);
    found->parent()->removeChild(*found);
    return true;
}

void TreeViewController::nodeWillLeave(File& node)
{
    m_rescan.nodeWillLeave(node);
    emit nodeLeaving(&node);
    if (m_selectedFile != nullptr && isAtOrBelow(*m_selectedFile, node)) {
        setSelectedFile(nullptr);
    }
    if (m_currentFolder != nullptr && isAtOrBelow(*m_currentFolder, node)) {
        setCurrentFolder(node.parent());
    }
}

void TreeViewController::folderWasReplaced(Folder& folder, Folder& with)
{
    TopFolder& top = *m_model.topFolder();
    if (m_selectedFile != nullptr && isAtOrBelow(*m_selectedFile, folder)) {
        setSelectedFile(nodeAtPath(top, m_selectedFile->absolutePath()));
    }
    emit folderReplaced(&folder);
    if (m_currentFolder != nullptr && isAtOrBelow(*m_currentFolder, folder)) {
        // What is in view may have vanished since it was scanned first; then it is what is left.
        File* const nearest = nearestNodeAtPath(top, m_currentFolder->absolutePath());
        auto* const shown = nodeCast<Folder>(nearest);
        setCurrentFolder(shown == nullptr ? &with : shown);
    }
}

void TreeViewController::objectTreeRefreshed()
{
    if (auto* const volume = nodeCast<Volume>(static_cast<File*>(m_model.topFolder()))) {
        // Without an answer the sizes last known are nearer to the truth than none.
        if (const auto sizes
            = m_services.fileSystemAttributes->attributesOfFileSystem(volume->origin())) {
            volume->refreshVolume(*sizes);
        }
    }
    emit treeChanged();
}

void TreeViewController::renderTree()
{
    m_treeView.removeAllBranches();
    m_note.hide();
    m_treeView.addBranch(branchFor(m_currentFolder));
    // Nobody may delete or preview what they do not see.
    if (m_selectedFile != nullptr && !m_treeView.shows(*m_selectedFile)) {
        setSelectedFile(nullptr);
    }
    m_rescan.pictureChanged();
    emit pictureRebuilt();
}

std::unique_ptr<TreeBranch> TreeViewController::branchFor(Folder* folder)
{
    const Rect bounds{
        0, 0, static_cast<double>(m_treeView.width()), static_cast<double>(m_treeView.height())};
    return renderFolder(folder, bounds, nullptr, 0);
}

std::unique_ptr<TreeBranch> TreeViewController::renderFolder(
    Folder* folder, const Rect& inRect, TreeBranch* inView, long level)
{
    const LevelRenderer renderer(m_model.pictureFilter().ignoreHiddenFiles());
    const auto placement
        = inView == nullptr ? LevelRenderer::Placement::Top : LevelRenderer::Placement::Nested;
    auto branch = TreeBranch::make(renderer.render(folder, inRect, placement, level));
    if (inView != nullptr) {
        inView->addSubBranch(std::move(branch));
        return nullptr;
    }
    return branch;
}

} // namespace tessera
