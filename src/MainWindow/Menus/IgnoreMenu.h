// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMenu>
#include <QPointer>

namespace tessera {

class File;
class Folder;
class RootModel;
class TreeViewController;

/// Stands for one folder that the user left out of the picture.
class IgnoreMenuItem final : public QAction {
    Q_OBJECT

public:
    IgnoreMenuItem(Folder& file, const QString& title, QObject* parent);

    Folder& file() const { return *m_file; }
    void setFile(Folder& file) { m_file = &file; }

private:
    Folder* m_file;
};

/// The menu of what the picture leaves out. An entry that is on is left out. What the first three
/// entries say is kept by the model's picture filter, what the entries of folders say by the
/// folders themselves. Main thread only.
class IgnoreMenu final : public QMenu {
    Q_OBJECT

public:
    /// What the data() of the fixed entries is. Entries of folders have none.
    enum Tag { FreeSpaceTag = 1, HiddenFilesTag = 2, RestrictedFilesTag = 4, ResetTag = 31 };

    /// The model must outlive the menu.
    explicit IgnoreMenu(RootModel& model, QWidget* parent = nullptr);

    /// The tree screen that shows the model's tree; null when there is none. The menu hears from it
    /// which folder is to be ignored and which folders leave the tree.
    void setTreeViewController(TreeViewController* tree);

    /// Ignores the folder that is selected on the tree screen, and draws that anew; nothing when
    /// no folder is selected.
    void ignoreFolder();

    /// An entry of the menu was chosen, fixed or of a folder.
    void ignoreItemSelected(QAction& sender);

    /// Flips one entry and what it stands for. Does not draw.
    void toggleIgnore(QAction& item);

    /// Leaves the fixed entries alone in the menu; they keep their states.
    void removeFolders();

private:
    QAction& addFixedEntry(const QString& title, Tag tag);
    void addKind(const QString& title, Tag tag, bool isOn);
    QAction* entryOf(const Folder& folder) const;
    void turnAllOff();
    void remove(QAction& item);
    void removeFoldersIn(const File& leaving);
    void followFoldersIn(const Folder& replaced);
    QList<IgnoreMenuItem*> itemsIn(const File& ancestor) const;

    RootModel& m_model;
    QPointer<TreeViewController> m_tree;
};

} // namespace tessera
