// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QKeyEvent;

namespace tessera {

class File;
class Folder;
class TreeBranch;

/// The screen that shows the tree, as those see it who change the tree under it or what is in view,
/// and those who show the selected item elsewhere.
class TreeScreen {
public:
    TreeScreen() = default;
    TreeScreen(const TreeScreen&) = delete;
    TreeScreen& operator=(const TreeScreen&) = delete;
    virtual ~TreeScreen() = default;

    /// To be called while the node is still in its place, before it leaves that for another or for
    /// good: what is shown or done in there ends.
    virtual void nodeWillLeave(File& node) = 0;

    /// To be called when a node has come to a place in the tree, from another or as a new one.
    virtual void nodeCame(const File& node) = 0;

    /// The replaced folder is out of the tree and about to be released; `with` stands in its
    /// place.
    virtual void folderWasReplaced(Folder& folder, Folder& with) = 0;

    /// The folder that fills the view; null when there is no tree.
    virtual const Folder* folderInView() const = 0;
    /// Does not draw.
    virtual void setCurrentFolder(Folder* folder) = 0;

    /// The selected item or null.
    virtual File* selectedFile() const = 0;
    /// Does not draw.
    virtual void setSelectedFile(File* file) = 0;

    /// The tree has other sizes now: a volume reads its own anew.
    virtual void objectTreeRefreshed() = 0;

    /// Rebuilds the whole picture from the tree.
    virtual void renderTree() = 0;

    /// The folder laid out as a branch that fills the view; it is not shown.
    virtual std::unique_ptr<TreeBranch> branchFor(Folder* folder) = 0;

    /// A key was pressed that is meant for the screen; false when it does nothing now.
    virtual bool keyDown(const QKeyEvent& event) = 0;
};

} // namespace tessera
