// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Observation.h"

#include <QObject>
#include <QPointer>

class QMainWindow;

namespace tessera {

class LayoutObject;
class StatusLine;
class TreeMapView;
class TreeViewController;
class UserDefaults;

/// The line at the window's lower edge that tells of the picture: of what is under the pointer, or
/// else selected, or else of the folder in view. The pointer counts while it moves over the
/// picture, and no more once another item is selected, as by the keyboard, until it moves again.
///
/// The user may switch it off, which is remembered. It takes its room from the picture, and without
/// a tree it is out of sight. Main thread only.
class TreeStatusBar final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it. The window owns what is shown.
    TreeStatusBar(QMainWindow& window, UserDefaults& defaults);
    ~TreeStatusBar() override;

    /// Whether the user wants it, also while there is no tree.
    bool isOn() const;
    void toggle();

    /// A tree is about to be on screen; the line takes its room.
    void treeComes();
    /// They show it.
    void connectTo(const TreeViewController& screen, const TreeMapView& picture);
    /// The screen is about to end, before the tree does.
    void treeLeaves();

private:
    void place();
    void pointAt(const LayoutObject* box);
    void refresh();

    QMainWindow& m_window;
    UserDefaults& m_defaults;
    StatusLine* m_line; ///< the window owns it
    bool m_isTreeDisplayed = false;
    QPointer<const TreeViewController> m_screen;
    /// Of the picture, which tells when its boxes go away; null while the pointer does not count.
    const LayoutObject* m_pointedAt = nullptr;
    Observation m_changes;
};

} // namespace tessera
