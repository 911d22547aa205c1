// SPDX-License-Identifier: MIT
#pragma once

#include "Layout/Rect.h"
#include "Model/Observation.h"
#include "TreeView/FolderZoom.h"

#include <QObject>

#include <memory>

namespace tessera {

class File;
class FileSystemAttributes;
class Folder;
class RootModel;
class TreeBranch;
class TreeMapView;
class Url;
struct TreeViewServices;

/// The controller of the tree screen: knows the folder in view and the selected item, and rebuilds
/// the picture whenever either of them, the tree or the view's size changes. Main thread only.
class TreeViewController final : public QObject {
public:
    /// Shows the model's tree in the view; both must outlive the controller, and so must what the
    /// services refer to. A volume's free space is read anew.
    TreeViewController(RootModel& model, TreeMapView& treeView, const TreeViewServices& services);
    ~TreeViewController() override;

    /// The folder that fills the view; null when there is no tree.
    Folder* currentFolder() const { return m_currentFolder; }
    /// Posts "CurrentFolderChanged". Does not draw.
    void setCurrentFolder(Folder* folder);

    /// The selected item or null. Its node carries the mark as well.
    File* selectedFile() const { return m_selectedFile; }
    /// Does not draw.
    void setSelectedFile(File* file);

    /// Shows the selected folder's content; nothing when no folder is selected.
    void zoomIn();
    /// Shows the folder around the one in view; nothing at the root.
    void zoomOut();
    /// Changes the folder in view, as FolderZoom does.
    void zoomInFolder(Folder& folder) { m_zoom.zoomInFolder(folder); }
    void zoomOutFolder(Folder& ancestor) { m_zoom.zoomOutFolder(ancestor); }
    /// A zoom has come to its end or was interrupted.
    void animationDidStop() { renderTree(); }

    /// A folder was clicked in the path bar: zooms out to it if it lies above the one in view. A
    /// click on the folder in view, or on one that is not above it, takes the selection away.
    void clickFolderPath(const Url& clicked);

    /// To be called when the disk has changed under the tree: a volume reads its sizes anew.
    void objectTreeRefreshed();

    /// Rebuilds the whole picture from the tree; a running zoom ends.
    void renderTree();

    /// Lays a folder out as a branch of frame `inRect`: at the top of the view when `inView` is
    /// null, and then the new branch is returned; else inside `inView`, which takes it over.
    std::unique_ptr<TreeBranch> renderFolder(
        Folder* folder, const Rect& inRect, TreeBranch* inView, long withLevel);

private:
    void observe();
    void doubleClickTreeItem();

    RootModel& m_model;
    TreeMapView& m_treeView;
    const FileSystemAttributes& m_fileSystem;
    FolderZoom m_zoom;
    Folder* m_currentFolder = nullptr;
    File* m_selectedFile = nullptr;
    Observation m_clickObservation;
    Observation m_doubleClickObservation;
};

} // namespace tessera
