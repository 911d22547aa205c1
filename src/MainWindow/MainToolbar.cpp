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
          QCoreApplication::translate("MainToolbar", "What the map leaves out")))
{
    m_toolbarActionsButton->setMenu(&actionsMenu);
}

void MainToolbar::setTreeDisplayed(bool displayed)
{
    m_toolbarHomeButton->setEnabled(displayed);
    m_toolbarSeparator->setVisible(displayed);
    m_toolbarPathControl->setVisible(displayed);
    m_toolbarActionsButton->setEnabled(displayed);
}

} // namespace tessera
