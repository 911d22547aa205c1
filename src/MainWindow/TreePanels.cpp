// SPDX-License-Identifier: MIT
#include "MainWindow/TreePanels.h"

#include "Basket/BasketKeeper.h"
#include "BasketPanel/BasketPanel.h"
#include "Language/PluralNumber.h"
#include "LedgerPanel/LedgerPanel.h"
#include "MainWindow/MainWindowServices.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "TreeScreen/TreeViewController.h"

#include <QLocale>

#include <utility>

namespace tessera {

TreePanels::TreePanels(QMainWindow& window, const MainWindowServices& services)
    : m_services(services)
    , m_panels(window, services.defaults)
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the window owns it
    , m_ledger(new LedgerPanel(services.model, services.ledger))
    , m_ledgerDock(&m_panels.add("spaceLedger", tr("Where the Space Is"), m_ledger))
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): likewise
    , m_basket(new BasketPanel(
          services.treeScreen.basket,
          services.freeing,
          services.treeScreen.scanEnvironment.mainThread))
    , m_basketDock(&m_panels.add("basket", tr("Basket"), m_basket))
{
    // Behind another's tab it is shown as before.
    connect(m_ledgerDock, &QDockWidget::visibilityChanged, m_ledger, &LedgerPanel::setInFront);
    connect(m_basketDock, &QDockWidget::visibilityChanged, m_basket, &BasketPanel::setInFront);
    connectBasket();
    m_panels.restore();
}

TreePanels::~TreePanels() = default;

void TreePanels::connectBasket()
{
    connect(
        &m_services.treeScreen.basket, &BasketKeeper::changed, this, &TreePanels::basketChanged);
    connect(m_basket, &BasketPanel::toggleRequested, this, &TreePanels::toggleSubject);
    connect(m_basket, &BasketPanel::dropped, this, &TreePanels::addDropped);
    connect(m_basket, &BasketPanel::showRequested, this, [this](File* item) {
        if (m_screen != nullptr) {
            m_screen->showItem(*item);
        }
    });
    connect(m_basket, &BasketPanel::moveAllRequested, this, [this](const FreedSpace& freed) {
        if (m_screen != nullptr) {
            m_screen->moveBasketToTrash(freed);
        }
        m_basket->setMoving(m_screen != nullptr && m_screen->isMovingBasket());
    });
}

void TreePanels::treeComes()
{
    m_ledger->treeReplaced();
    m_panels.setTreeDisplayed(true);
}

void TreePanels::connectTo(TreeViewController& screen)
{
    m_screen = &screen;
    connect(&screen, &TreeViewController::treeChanged, m_ledger, &LedgerPanel::treeChanged);
    connect(&screen, &TreeViewController::treeChanged, m_basket, &BasketPanel::treeChanged);
    connect(&screen, &TreeViewController::spaceClicked, this, &TreePanels::openLedger);
    connect(&screen, &TreeViewController::selectionChanged, this, &TreePanels::updateSubject);
    connect(&screen, &TreeViewController::currentFolderChanged, this, &TreePanels::updateSubject);
    connect(&screen, &TreeViewController::basketMoveEnded, m_basket, [this] {
        m_basket->setMoving(false);
    });
    // What comes back with the tree opens nothing that the user has closed.
    m_hasShownBasket = true;
    m_services.treeScreen.basket.treeCame(*m_services.model.topFolder());
    m_hasShownBasket = !basket().isEmpty();
    m_lastSize = basket().size();
    updateSubject();
}

void TreePanels::treeLeaves()
{
    m_screen = nullptr;
    m_basket->setSubject(nullptr);
    m_basket->setMoving(false);
    m_services.treeScreen.basket.treeLeaves(*m_services.model.topFolder());
    m_panels.setTreeDisplayed(false);
}

bool TreePanels::isLedgerOpen() const
{
    return m_panels.isOpen(*m_ledgerDock);
}

void TreePanels::toggleLedger()
{
    m_panels.toggle(*m_ledgerDock);
}

void TreePanels::openLedger()
{
    if (m_screen != nullptr && m_screen->validate(Command::SpaceLedger)) {
        m_panels.open(*m_ledgerDock);
    }
}

void TreePanels::toggleBasket()
{
    m_panels.toggle(*m_basketDock);
}

/// What is selected, or else the folder in view.
void TreePanels::updateSubject()
{
    if (m_screen == nullptr) {
        return;
    }
    const File* const selected = m_screen->selectedFile();
    m_basket->setSubject(selected != nullptr ? selected : m_screen->currentFolder());
}

/// Who puts the first item into the basket is to see where it went, and hears of the others.
void TreePanels::basketChanged()
{
    const std::size_t before = std::exchange(m_lastSize, basket().size());
    if (!basket().isEmpty() && !std::exchange(m_hasShownBasket, true)) {
        m_panels.open(*m_basketDock);
    } else if (basket().size() != before && !SidePanels::isInSight(*m_basketDock)) {
        sayHowMany();
    }
    m_hasShownBasket = !basket().isEmpty();
}

void TreePanels::sayHowMany()
{
    if (m_screen == nullptr) {
        return;
    }
    const std::size_t count = basket().size();
    if (count == 0) {
        m_screen->say(tr("The basket is empty."));
    } else {
        m_screen->say(
            count == 1 ? tr("The basket has one item.")
                       : tr("The basket has %1 items.", nullptr, pluralNumber(count))
                             .arg(QLocale().toString(qulonglong{count})));
    }
}

const Basket& TreePanels::basket() const
{
    return m_services.treeScreen.basket.basket();
}

void TreePanels::toggleSubject()
{
    if (m_screen == nullptr) {
        return;
    }
    File* const selected = m_screen->selectedFile();
    if (File* const subject = selected != nullptr ? selected : m_screen->currentFolder()) {
        m_services.treeScreen.basket.toggle(*subject);
    }
}

/// The tree may have changed while it was dragged.
void TreePanels::addDropped(const std::string& pathInTree)
{
    TopFolder* const top = m_screen == nullptr ? nullptr : m_services.model.topFolder();
    if (File* const item = top == nullptr ? nullptr : nodeAtPath(*top, pathInTree)) {
        m_services.treeScreen.basket.add(*item);
    }
}

} // namespace tessera
