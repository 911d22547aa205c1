// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeViewController.h"

#include "Basket/BasketKeeper.h"
#include "Desktop/Alert.h"
#include "Desktop/Workspace.h"
#include "Layout/LevelRenderer.h"
#include "Model/Document.h"
#include "Model/FileSystemAttributes.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Model/TreeEdit.h"
#include "Model/Volume.h"
#include "Scanning/ResourceValues.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeViewServices.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "Widgets/NoFileManager.h"

#include <QPointer>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
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
    , m_rescan(
          model, services.scanEnvironment, services.checkFolder, treeView, services.alert, *this)
    , m_risks(model, services.defaults)
    , m_moves(model, services.trashUndo, services.diskChanges, services.basket, *this)
    , m_trasher(m_risks, m_moves, services.alert)
    , m_basketTrasher(model, m_risks, m_moves, services.basket, services.alert, services.userNumber)
    , m_changes(model, services.resourceValues, m_rescan, *this)
    , m_preview(*this, treeView)
    , m_opening(services.otherPrograms, services.alert, treeView)
    , m_trashNote(&treeView)
    , m_note(&treeView, &m_trashNote)
    , m_clicks(treeView, *this, *this, m_preview, actions)
{
    setCurrentFolder(m_model.topFolder());
    observeTreeView();
    observeTrashNote();
    observeBasket();
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
    connect(&m_clicks, &TreeClicks::spaceClicked, this, &TreeViewController::spaceClicked);
    connect(
        &m_treeView, &TreeMapView::menuKeyInVain, this, [this] { m_note.say(nothingSelected()); });
}

void TreeViewController::observeTrashNote()
{
    const TrashUndo& undo = m_services.trashUndo;
    connect(&undo, &TrashUndo::moved, this, &TreeViewController::sayMoved);
    connect(&undo, &TrashUndo::changed, this, &TreeViewController::endUntrueNote);
    connect(&undo, &TrashUndo::wasPutBack, this, [this](const ReturnedItem& item) {
        if (std::ranges::find(m_saidStep.items, item.moved) != m_saidStep.items.end()) {
            m_trashNote.end();
        }
    });
    connect(&m_trashNote, &TrashNote::undoRequested, this, &TreeViewController::undoFromNote);
    connect(&m_trashNote, &TrashNote::openTrashRequested, this, &TreeViewController::openTrash);
    connect(&m_trashNote, &TrashNote::pointerCame, &m_treeView, &TreeMapView::hideTooltip);
}

/// Its button is for what it says alone.
void TreeViewController::endUntrueNote()
{
    if (!m_saidStep.items.empty() && !m_services.trashUndo.isNextToUndo(m_saidStep)) {
        m_saidStep = {};
        m_trashNote.end();
    }
}

void TreeViewController::sayMoved(const TrashStep& step)
{
    m_saidStep = step;
    const OtherNames otherNames = step.otherNames();
    const std::size_t count = step.items.size();
    const std::string_view name = step.items.front().item.from.lastPathComponent();
    if (otherNames == OtherNames::None) {
        count == 1 ? m_trashNote.sayItem(name, step.bytes())
                   : m_trashNote.sayItems(count, step.bytes());
    } else {
        count == 1 ? m_trashNote.sayItem(name, otherNames)
                   : m_trashNote.sayItemsWithOtherNames(count);
    }
}

void TreeViewController::undoFromNote()
{
    const QString obstacle = m_services.trashUndo.whyNoUndo();
    if (obstacle.isEmpty()) {
        m_trashNote.end();
        m_services.trashUndo.undo();
    } else {
        say(obstacle);
    }
}

void TreeViewController::observe()
{
    const DiskChanges& changes = m_services.diskChanges;
    connect(&changes, &DiskChanges::itemGone, this, [this](const Url& place) {
        m_changes.itemGone(place);
    });
    connect(&changes, &DiskChanges::itemsMoved, this, [this](const std::vector<ItemMove>& moves) {
        m_changes.itemsMoved(moves);
    });
    connect(&changes, &DiskChanges::itemInDoubt, this, [this](const std::vector<Url>& places) {
        m_changes.itemInDoubt(places);
    });
    connect(
        &changes, &DiskChanges::itemCompressed, this, [this](const std::optional<Url>& archive) {
            if (archive) {
                m_changes.itemCompressed(*archive);
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
    if (m_rescan.isAskedFor()) {
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

void TreeViewController::showItem(File& item)
{
    m_zoom.endRunningZoom();
    if (!m_treeView.shows(item) && item.parent() != nullptr) {
        setCurrentFolder(item.parent());
    }
    setSelectedFile(&item);
    renderTree();
    m_treeView.setFocus();
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
    const std::string name(m_selectedFile->name());
    m_services.workspace.reveal(
        m_selectedFile->url(), [self = QPointer<TreeViewController>(this), name](bool isShown) {
            if (self != nullptr && !isShown) {
                self->m_services.alert.beginSheet(noFileManager(name));
            }
        });
}

void TreeViewController::openTrash()
{
    m_services.workspace.openUrl(
        "trash:///", [self = QPointer<TreeViewController>(this)](bool isOpened) {
            if (self != nullptr && !isOpened) {
                self->sayThatThereIsNoTrash();
            }
        });
}

void TreeViewController::sayThatThereIsNoTrash()
{
    m_services.alert.beginSheet(
        {tr("The trash cannot be opened"),
         tr("The desktop offers no program that shows it."),
         {tr("OK")}});
}

CommandContext TreeViewController::commandContext() const
{
    CommandContext context;
    context.hasTreeScreen = true;
    context.isRootInView = m_currentFolder == m_model.topFolder();
    context.selectedFile = m_selectedFile;
    context.isInBasket
        = m_selectedFile != nullptr && m_services.basket.basket().isMarked(*m_selectedFile);
    context.isDiskScanned = nodeCast<Volume>(static_cast<File*>(m_model.topFolder())) != nullptr;
    context.folderInView = m_currentFolder;
    context.rescanObstacle = rescanObstacle();
    return context;
}

bool TreeViewController::validate(Command command) const
{
    return isEnabled(command, commandContext());
}

QString TreeViewController::whyNot(Command command) const
{
    return whyDisabled(command, commandContext());
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
    case Command::AddToBasket:
        toggleInBasket();
        break;
    case Command::Ignore:
        emit ignoreRequested();
        break;
    default:
        performElsewhere(command);
        break;
    }
}

void TreeViewController::nodeWillLeave(File& node)
{
    m_rescan.nodeWillLeave(node);
    m_services.basket.nodeWillLeave(node);
    emit nodeLeaving(&node);
    if (m_selectedFile != nullptr && isAtOrBelow(*m_selectedFile, node)) {
        setSelectedFile(nullptr);
    }
    if (m_currentFolder != nullptr && isAtOrBelow(*m_currentFolder, node)) {
        setCurrentFolder(node.parent());
    }
}

void TreeViewController::nodeCame(const File& node)
{
    m_rescan.nodeCame(node);
    m_services.basket.nodeCame(node);
}

void TreeViewController::folderWasReplaced(Folder& folder, Folder& with)
{
    m_services.basket.folderWasReplaced(folder, with);
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
        // Without an answer, or with that of another disk, the sizes last known are nearer to the
        // truth.
        const auto sizes
            = m_services.fileSystemAttributes->attributesOfFileSystem(volume->origin());
        if (sizes && volume->mayBeSizesOfIt(*sizes)) {
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
    m_treeView.setAccessibleDescription(
        QString::fromStdString(m_treeView.branches().front()->textWithoutBoxes()));
    // Nobody may delete or preview what they do not see.
    if (m_selectedFile != nullptr && !m_treeView.shows(*m_selectedFile)) {
        setSelectedFile(nullptr);
    }
    m_rescan.pictureChanged();
    keepTrashNoteClear();
    emit pictureRebuilt();
}

void TreeViewController::keepTrashNoteClear()
{
    const std::optional<Rect> box
        = m_selectedFile == nullptr ? std::nullopt : m_treeView.findRectForFile(*m_selectedFile);
    m_trashNote.keepClearOf(
        box ? QRectF(box->x, box->y, box->width, box->height).toAlignedRect() : QRect());
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
