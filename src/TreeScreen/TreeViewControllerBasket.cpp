// SPDX-License-Identifier: MIT
// The basket on the tree screen.
#include "Basket/BasketKeeper.h"
#include "Language/PluralNumber.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/TreeViewController.h"

#include <QLocale>

#include <cstddef>

namespace tessera {

void TreeViewController::observeBasket()
{
    m_treeView.setBasket(&m_services.basket.basket());
    connect(&m_services.basket, &BasketKeeper::changed, &m_treeView, &TreeMapView::basketChanged);
    // Whatever found that out draws a new picture first, on which nothing is said.
    connect(
        &m_services.basket,
        &BasketKeeper::lost,
        this,
        [this](std::size_t count) {
            say(count == 1 ? tr("One item of the basket is not there any more.")
                           : tr("%1 items of the basket are not there any more.",
                                nullptr,
                                pluralNumber(count))
                                 .arg(QLocale().toString(qulonglong{count})));
        },
        Qt::QueuedConnection);
    connect(&m_basketTrasher, &BasketTrasher::ended, this, &TreeViewController::basketMoveEnded);
}

void TreeViewController::moveBasketToTrash(const FreedSpace& freed)
{
    // A disk that gave no answer when they were chosen may give one now.
    m_services.basket.lookAtUnknown();
    m_basketTrasher.begin(freed);
}

void TreeViewController::toggleInBasket()
{
    if (validate(Command::AddToBasket)) {
        m_services.basket.toggle(*m_selectedFile);
    }
}

} // namespace tessera
