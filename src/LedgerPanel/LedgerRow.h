// SPDX-License-Identifier: MIT
#pragma once

#include "LedgerPanel/LedgerList.h"

#include <QColor>
#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QTreeView;
class QVBoxLayout;

namespace tessera {

/// What one line of the ledger says.
struct LedgerRowTexts {
    QString name;
    QString number;
    QString exactNumber; ///< empty where there is none
    QString explanation;
    QColor color; ///< of its part of the bar; invalid for none
};

/// One line of the ledger as the user sees it: its name and number, an explanation, and a list that
/// opens. It takes the keyboard, so that screen readers read it out whole.
class LedgerRow final : public QFrame {
    Q_OBJECT

public:
    explicit LedgerRow(QWidget* parent = nullptr);

    void setTexts(const LedgerRowTexts& texts);

    using MakeList = std::function<LedgerList()>;
    /// Has a button of that text open the list, which is made only then, or anew now if it is open
    /// already. Without a text there is no list.
    void setList(const QString& buttonText, MakeList makeList);

    /// Whether the list is open.
    bool isListOpen() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void makeHead();
    void makeListView();
    void showList(bool shown);
    void sizeColumns();

    QVBoxLayout* m_layout;
    QLabel* m_swatch;
    QLabel* m_name;
    QLabel* m_number;
    QLabel* m_explanation;
    QPushButton* m_listButton;
    QTreeView* m_listView;
    QLabel* m_more;
    LedgerListModel m_model;
    MakeList m_makeList;
};

} // namespace tessera
