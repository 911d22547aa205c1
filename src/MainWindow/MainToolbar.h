// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QAction;
class QMenu;
class QToolBar;
class QToolButton;

namespace tessera {

class ToolbarPathControl;

/// What is on the main window's toolbar: the way home, the path bar, the item commands and the
/// ignore menu. The widgets belong to the toolbar.
class MainToolbar final {
public:
    /// `actionsMenu` opens under the actions button.
    MainToolbar(QToolBar& toolbar, QMenu& actionsMenu);

    /// The path bar is the tree's.
    void setTreeDisplayed(bool displayed);
    /// Enables each button whose reason is empty; the others tell theirs.
    void setDisabledBecause(const QString& whyNotHome, const QString& whyNoActions);

    QToolButton& toolbarHomeButton() const { return *m_toolbarHomeButton; }
    QAction& toolbarSeparator() const { return *m_toolbarSeparator; }
    ToolbarPathControl& toolbarPathControl() const { return *m_toolbarPathControl; }
    QToolButton& toolbarActionsButton() const { return *m_toolbarActionsButton; }
    QToolButton& toolbarIgnoreButton() const { return *m_toolbarIgnoreButton; }

private:
    QToolButton* m_toolbarHomeButton;
    QAction* m_toolbarSeparator;
    ToolbarPathControl* m_toolbarPathControl;
    QToolButton* m_toolbarActionsButton;
    QToolButton* m_toolbarIgnoreButton;
};

} // namespace tessera
