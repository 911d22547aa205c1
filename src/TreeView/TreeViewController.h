// SPDX-License-Identifier: MIT
#pragma once

#include "Layout/Rect.h"
#include "Model/Observation.h"

#include <QObject>

#include <memory>

namespace tessera {

class File;
class Folder;
class RootModel;
class TreeBranch;
class TreeMapView;

/// The controller of the tree screen: knows the folder in view and the selected item, and rebuilds
/// the picture whenever either of them, the tree or the view's size changes. Main thread only.
class TreeViewController final : public QObject {
public:
    /// Shows the model's tree in the view; both must outlive the controller.
    TreeViewController(RootModel& model, TreeMapView& treeView);
    ~TreeViewController() override;

    /// The folder that fills the view; null when there is no tree.
    Folder* currentFolder() const { return m_currentFolder; }
    /// Posts "CurrentFolderChanged". Does not draw.
    void setCurrentFolder(Folder* folder);

    /// The selected item or null. Its node carries the mark as well.
    File* selectedFile() const { return m_selectedFile; }
    /// Does not draw.
    void setSelectedFile(File* file);

    /// Rebuilds the whole picture from the tree.
    void renderTree();

    /// Lays a folder out as a branch of frame `inRect`: at the top of the view when `inView` is
    /// null, and then the new branch is returned; else inside `inView`, which takes it over.
    std::unique_ptr<TreeBranch> renderFolder(
        Folder* folder, const Rect& inRect, TreeBranch* inView, long withLevel);

private:
    RootModel& m_model;
    TreeMapView& m_treeView;
    Folder* m_currentFolder = nullptr;
    File* m_selectedFile = nullptr;
    Observation m_clickObservation;
};

} // namespace tessera
