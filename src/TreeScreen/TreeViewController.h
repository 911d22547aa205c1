// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "Commands/CommandContext.h"
#include "OpenItem/ItemOpening.h"
#include "TreeScreen/FolderRescan.h"
#include "TreeScreen/Map/BoxNavigation.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/SelectionPreview.h"
#include "TreeScreen/Trash/BasketTrasher.h"
#include "TreeScreen/Trash/ItemTrasher.h"
#include "TreeScreen/Trash/MovesToTrash.h"
#include "TreeScreen/Trash/TrashRisks.h"
#include "TreeScreen/TrashNote.h"
#include "TreeScreen/TreeChanges.h"
#include "TreeScreen/TreeClicks.h"
#include "TreeScreen/TreeCommandTarget.h"
#include "TreeScreen/TreeKeys.h"
#include "TreeScreen/TreeNote.h"
#include "TreeScreen/TreeViewServices.h"
#include "TreeScreen/Zoom/FolderZoom.h"
#include "Undo/TrashStep.h"

#include <QObject>

#include <memory>

class QKeyEvent;

namespace tessera {

class CommandActions;
class File;
class Folder;
class RootModel;
class TreeBranch;
class TreeMapView;
class Url;

/// The controller of the tree screen: knows the folder in view and the selected item, rebuilds the
/// picture whenever either of them, the tree or the view's size changes, and carries out what the
/// user asks for. Main thread only.
class TreeViewController final : public QObject, public TreeCommandTarget, private TreeScreen {
    Q_OBJECT

public:
    /// Shows the model's tree in the view; both must outlive the controller, and so must what the
    /// services refer to. A volume's free space is read anew. The context menu shows the `actions`,
    /// which must outlive the controller too; without them there is none.
    TreeViewController(
        RootModel& model,
        TreeMapView& treeView,
        const TreeViewServices& services,
        const CommandActions* actions = nullptr);
    ~TreeViewController() override;

    /// The folder that fills the view; null when there is no tree.
    Folder* currentFolder() const { return m_currentFolder; }
    /// Does not draw.
    void setCurrentFolder(Folder* folder) override;

    /// The selected item or null. Its node carries the mark as well, which nobody else sets.
    File* selectedFile() const override { return m_selectedFile; }
    /// Does not draw.
    void setSelectedFile(File* file) override;

    /// Shows the selected folder's content; nothing when no folder is selected.
    void zoomIn();
    /// Shows the folder around the one in view; nothing at the root.
    void zoomOut();
    /// Changes the folder in view, as FolderZoom does.
    void zoomInFolder(Folder& folder);
    void zoomOutFolder(Folder& ancestor);
    /// A zoom has come to its end or was interrupted.
    void animationDidStop() { renderTree(); }

    /// A folder was clicked in the path bar: zooms out to it if it lies above the one in view. A
    /// click on the folder in view, or on one that is not above it, takes the selection away.
    void clickFolderPath(const Url& clicked);

    /// Moves the selected item to the trash, after a warning where that is risky.
    void trashItem();
    /// Puts the selected item into the basket, or takes it out again.
    void toggleInBasket();
    /// Has another program do what the command is about, with the selected item, or the folder in
    /// view.
    void performElsewhere(Command command);
    /// Moves all that is in the basket to the trash, as BasketTrasher does.
    void moveBasketToTrash(const FreedSpace& freed);
    /// Whether that is under way, beginning with the question.
    bool isMovingBasket() const { return m_basketTrasher.isMoving(); }
    /// What refreshFolder() scans: the selected folder, or the one in view while nothing is
    /// selected. Null for a selected file, and without a tree.
    Folder* folderToRescan() const;
    /// Scans folderToRescan() anew, in the background, and takes the selection away. Nothing when
    /// validate() says so, nor for the scanned folder itself, which needs a scan.
    void refreshFolder();
    /// Does nothing while the user waits for another rescan.
    void rescanSelectedFolder(Folder& folder) { m_rescan.rescan(folder); }
    /// Selects the item, in the folder around it where the one in view does not show it.
    void showItem(File& item);
    void showInFinder();
    /// Opens the preview panel on the selected item, or brings it to the front.
    void quickLook();
    /// Compresses the selected item beside itself, in a window of its own.
    void compressItem();
    /// Moves the item of which there is an archive to the trash, as trashItem() does, if it is
    /// still that very item.
    void trashOriginal(const Url& original, const ExpectedItem& expected);

    /// For what the program has changed on the disk.
    TreeChanges& changes() { return m_changes; }

    /// What decides which commands can be performed, as far as this screen knows it.
    CommandContext commandContext() const;
    /// Whether the command can be performed now.
    bool validate(Command command) const;
    /// Why it cannot be performed now, a sentence for the user; empty when it can.
    QString whyNot(Command command) const;
    /// As the screen's keys do.
    void perform(Command command) override;

    /// A key was pressed on the tree screen; false when it does nothing now. Why not is said on
    /// the picture.
    bool keyDown(const QKeyEvent& event) override;

    /// Says on the picture, for a while, why something cannot be done; an empty text is nothing.
    void say(const QString& why);

    /// To be called when the disk has changed under the tree: a volume reads its sizes anew,
    /// or keeps them when its file system does not answer at once.
    void objectTreeRefreshed() override;

    /// Rebuilds the whole picture from the tree; a running zoom ends. What is selected and not in
    /// the picture is selected no longer.
    void renderTree() override;

    /// Lays a folder out as a branch of frame `inRect`: at the top of the view when `inView` is
    /// null, and then the new branch is returned; else inside `inView`, which takes it over.
    std::unique_ptr<TreeBranch> renderFolder(
        Folder* folder, const Rect& inRect, TreeBranch* inView, long level);

signals:
    /// Another folder fills the view.
    void currentFolderChanged();
    /// Sizes or names in the tree are others than before.
    void treeChanged();
    /// Another item is selected, or none any more.
    void selectionChanged();
    /// The picture was rebuilt from the tree.
    void pictureRebuilt();
    /// A click was on a box that stands for a disk's space and for no file.
    void spaceClicked();
    /// No move of the basket is under way any more.
    void basketMoveEnded();
    /// The selected folder is to be left out of the picture.
    void ignoreRequested();
    /// The node, with all below it, is about to leave its place in the tree.
    void nodeLeaving(File* node);
    /// The folder is out of the tree and about to be released; another stands in its place.
    void folderReplaced(Folder* folder);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void nodeWillLeave(File& node) override;
    void nodeCame(const File& node) override;
    void folderWasReplaced(Folder& folder, Folder& with) override;
    const Folder* folderInView() const override { return m_currentFolder; }
    std::unique_ptr<TreeBranch> branchFor(Folder* folder) override;

    void observe();
    void observeTreeView();
    void observeTrashNote();
    void observeBasket();
    void sayMoved(const TrashStep& step);
    void endUntrueNote();
    void undoFromNote();
    void openTrash();
    void sayThatThereIsNoTrash();
    void keepTrashNoteClear();
    RescanObstacle rescanObstacle() const;
    bool isMountPoint(const Folder& toRescan) const;
    bool moveSelection(Direction direction);
    bool carryOut(const TreeKeyAction& action);
    void sayWhyNot(const TreeKeyAction& action);

    RootModel& m_model;
    TreeMapView& m_treeView;
    const TreeViewServices m_services;
    FolderZoom m_zoom;
    FolderRescan m_rescan;
    const TrashRisks m_risks;
    MovesToTrash m_moves;
    ItemTrasher m_trasher;
    BasketTrasher m_basketTrasher;
    TreeChanges m_changes;
    SelectionPreview m_preview;
    ItemOpening m_opening;
    TrashNote m_trashNote;
    TrashStep m_saidStep; ///< what the note has said last
    TreeNote m_note;
    TreeClicks m_clicks;
    Folder* m_currentFolder = nullptr;
    File* m_selectedFile = nullptr;
    /// Of the folder to rescan, as far as the system was asked.
    mutable std::optional<bool> m_isMountPoint;
};

} // namespace tessera
