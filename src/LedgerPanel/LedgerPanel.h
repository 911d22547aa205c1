// SPDX-License-Identifier: MIT
#pragma once

#include "LedgerPanel/LedgerAccount.h"
#include "LedgerPanel/LedgerQuestions.h"

#include <QTimer>
#include <QWidget>

#include <map>
#include <optional>

class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace tessera {

class LedgerBar;
class LedgerRow;
class RootModel;

/// Shows where the space of the scanned disk is: the lines of its account, which add up to its
/// size, what each is about, and what is to be done about it. It asks anew whenever it comes into
/// sight and when the tree has changed, and nothing while it is out of sight. Main thread only.
class LedgerPanel final : public QWidget {
    Q_OBJECT

public:
    /// How long the tree has to be still before the panel counts again.
    static constexpr int kStillMilliseconds = 500;

    /// The model must outlive it.
    LedgerPanel(
        const RootModel& model,
        const LedgerServices& services,
        std::chrono::milliseconds patience = LedgerQuestions::kPatience);
    ~LedgerPanel() override;

    /// Another scan's tree is on screen.
    void treeReplaced();
    /// Sizes in the tree are others than before.
    void treeChanged();

    /// Whether nothing covers its place, such as a panel whose tab is before its own; at first
    /// nothing does.
    void setInFront(bool isInFront);

    bool isCounting() const { return m_questions.isAsking() || m_answered.has_value(); }
    /// What is shown; nothing while there is none.
    const std::optional<LedgerAccount>& account() const { return m_account; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    /// Hands the keyboard on to the first line.
    void focusInEvent(QFocusEvent* event) override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void makeHead(QVBoxLayout& layout);
    void makeRows(QVBoxLayout& layout);
    LedgerRow* makeRow(const char* objectName, QVBoxLayout& layout);
    bool isInSight() const;
    void count();
    void stopCounting();
    void take(const DiskAnswer& answer);
    void countSome();
    void dropAnswer();
    void tellOutcome();
    QString problemOf(const DiskAnswer& answer) const;
    void showAccount();
    void showLine(LedgerRow& row, const LedgerLine& line);
    void showSum();
    void say(const QString& status);
    void readOut(const QString& status);
    void handOnFocus();
    bool moveFocus(const LedgerRow& from, int steps);
    std::vector<LedgerRow*> visibleRows() const;

    const RootModel& m_model;
    LedgerQuestions m_questions;
    bool m_isInFront = true;
    bool m_handsOnFocus = false; ///< to the first line, when there is one
    QTimer m_later{this}; ///< runs while the tree is changing
    /// What the disk said, while the tree is counted for it.
    struct Answered {
        DiskAnswer disk;
        FoundSpaceCount count;
    };
    std::optional<Answered> m_answered;
    QString m_problem; ///< why there is no account; empty for none
    QTimer m_nextStep{this}; ///< of that count
    std::optional<LedgerAccount> m_account;
    QLabel* m_status;
    QPushButton* m_again;
    LedgerBar* m_bar;
    QScrollArea* m_scroll;
    QWidget* m_line; ///< above the sum
    std::map<LedgerLine::Kind, LedgerRow*> m_rows;
    LedgerRow* m_sum = nullptr;
};

} // namespace tessera
