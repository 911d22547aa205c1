// SPDX-License-Identifier: MIT
#include "MainWindow/MainToolbar.h"

#include "MainWindow/MenuToolButton.h"
#include "MainWindow/ToolbarSymbol.h"
#include "TreeScreen/PathBar/ToolbarPathControl.h"
#include "TreeScreen/PathBar/ToolbarPathItem.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace tessera {

namespace {

template <typename Button>
QToolButton* addButton(QToolBar& toolbar, ToolbarSymbol symbol, const QString& name)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const button = new Button(&toolbar);
    button->setIcon(iconOf(symbol));
    button->setText(name);
    button->setToolTip(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    toolbar.addWidget(button);
    return button;
}

QAction* addSeparator(QToolBar& toolbar)
{
    return toolbar.addSeparator();
}

ToolbarPathControl* addPathControl(QToolBar& toolbar)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const item = new ToolbarPathItem(&toolbar);
    toolbar.addWidget(item);
    return &item->pathControl();
}

/// The reason is told to who asks what the button is, and to screen readers.
void disableBecause(QToolButton& button, const QString& reason)
{
    button.setEnabled(reason.isEmpty());
    button.setToolTip(
        reason.isEmpty() ? button.text() : button.text() + QLatin1Char('\n') + reason);
    button.setAccessibleDescription(reason);
}

} // namespace

MainToolbar::MainToolbar(QToolBar& toolbar, QMenu& actionsMenu)
    : m_toolbarHomeButton(addButton<QToolButton>(
        toolbar,
        ToolbarSymbol::Home,
        QCoreApplication::translate("MainToolbar", "Choose another disk or folder")))
    , m_toolbarSeparator(addSeparator(toolbar))
    , m_toolbarPathControl(addPathControl(toolbar))
    , m_toolbarActionsButton(addButton<MenuToolButton>(
          toolbar,
          ToolbarSymbol::Actions,
          QCoreApplication::translate("MainToolbar", "Commands for the selected item")))
    , m_toolbarIgnoreButton(addButton<MenuToolButton>(
          toolbar,
          ToolbarSymbol::Ignore,
          QCoreApplication::translate("MainToolbar", "What the picture leaves out")))
{
    m_toolbarActionsButton->setMenu(&actionsMenu);
}

void MainToolbar::setTreeDisplayed(bool displayed)
{
    m_toolbarSeparator->setVisible(displayed);
    m_toolbarPathControl->setVisible(displayed);
}

void MainToolbar::setDisabledBecause(const QString& whyNotHome, const QString& whyNoActions)
{
    disableBecause(*m_toolbarHomeButton, whyNotHome);
    disableBecause(*m_toolbarActionsButton, whyNoActions);
}

} // namespace tessera
