// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QScopedPointer>

#include <memory>

class QMenu;

namespace tessera {

class CommandActions;
class File;
class SelectionPreview;
class TreeCommandTarget;
class TreeMapView;
class TreeScreen;

/// What clicks on the map's boxes do: one selects, two open, and the context menu comes up where it
/// is wanted. Main thread only.
class TreeClicks final : public QObject {
    Q_OBJECT

public:
    /// All must outlive it. The menu shows the `actions`; without them there is none.
    TreeClicks(
        TreeMapView& treeView,
        TreeScreen& screen,
        TreeCommandTarget& commands,
        SelectionPreview& preview,
        const CommandActions* actions);
    ~TreeClicks() override;

    /// Zooms into the selected folder, or previews the selected document.
    void openSelected();

signals:
    /// A click was on a box that stands for a disk's space and for no file.
    void spaceClicked();

private:
    void select(File& node);
    void drag(const File& node);
    void showMenu(const File& node, QPoint onScreen);

    TreeMapView& m_treeView;
    TreeScreen& m_screen;
    TreeCommandTarget& m_commands;
    SelectionPreview& m_preview;
    const CommandActions* m_actions;
    /// What its entry does may end the screen, in the middle of the click on the menu.
    std::unique_ptr<QMenu, QScopedPointerDeleteLater> m_menu;
};

} // namespace tessera
