// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMenu>
#include <QPointer>

#include <cstdint>

namespace tessera {

class File;
class Folder;
class RootModel;
class TreeViewController;

/// The fixed entries of the ignore menu but its title.
enum class IgnoreEntry : std::uint8_t {
    FreeSpace = 1,
    HiddenFiles = 2,
    RestrictedFiles = 4,
    Reset = 31
};

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
/// folders themselves. The data() of a fixed entry is its IgnoreEntry; entries of folders have
/// none. Main thread only.
class IgnoreMenu final : public QMenu {
    Q_OBJECT

public:
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
    QAction& addFixedEntry(const QString& title, IgnoreEntry entry);
    void addKind(const QString& title, IgnoreEntry entry, bool isOn);
    QAction* entryOf(const Folder& folder) const;
    void setFilter(IgnoreEntry entry, bool isOn);
    void turnAllOff();
    void remove(QAction& item);
    void removeFoldersIn(const File& leaving);
    void followFoldersIn(const Folder& replaced);
    QList<IgnoreMenuItem*> itemsIn(const File& ancestor) const;

    RootModel& m_model;
    QPointer<TreeViewController> m_tree;
};

} // namespace tessera
