// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow/SidePanels.h"

#include <QObject>
#include <QPointer>

#include <cstddef>
#include <string>

class QDockWidget;
class QMainWindow;

namespace tessera {

class Basket;
class BasketPanel;
class File;
class LedgerPanel;
class TreeViewController;
struct MainWindowServices;

/// The panels beside the picture, and what they and the tree screen tell each other. Main thread
/// only.
class TreePanels final : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    TreePanels(QMainWindow& window, const MainWindowServices& services);
    ~TreePanels() override;

    SidePanels& sidePanels() { return m_panels; }

    /// A tree is about to be on screen; the panels take their room.
    void treeComes();
    /// The screen shows it.
    void connectTo(TreeViewController& screen);
    /// The screen is about to end, before the tree does.
    void treeLeaves();

    bool isLedgerOpen() const;
    void toggleLedger();
    /// The keyboard stays with the picture: the next arrow goes on from the box that was clicked.
    void openLedger();

    void toggleBasket();

private:
    void connectBasket();
    void updateSubject();
    const Basket& basket() const;
    void basketChanged();
    void sayHowMany();
    void toggleSubject();
    void addDropped(const std::string& pathInTree);

    const MainWindowServices& m_services;
    SidePanels m_panels;
    LedgerPanel* m_ledger; ///< the window owns it
    QDockWidget* m_ledgerDock; ///< that holds it
    BasketPanel* m_basket; ///< likewise
    QDockWidget* m_basketDock;
    QPointer<TreeViewController> m_screen;
    bool m_hasShownBasket = false; ///< since there is something in it
    std::size_t m_lastSize = 0; ///< of the basket
};

} // namespace tessera
