// SPDX-License-Identifier: MIT
#pragma once

#include "LedgerPanel/LedgerAccount.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace tessera {

/// What a line of the ledger is about, one by one.
struct LedgerList {
    QStringList headings;
    std::vector<QStringList> rows; ///< texts of one line, one for each heading
    QString more; ///< how many there are beside these; empty where there are none
    int widest = 0; ///< the column of paths, which needs the most room

    bool operator==(const LedgerList&) const = default;
};

/// What there is to list for a line; without rows for one that has nothing to list.
[[nodiscard]] LedgerList ledgerList(LedgerLine::Kind kind, const LedgerAccount& account);
/// How many rows that has.
[[nodiscard]] std::size_t ledgerListLength(LedgerLine::Kind kind, const LedgerAccount& account);

/// A list for an item view; tooltips show texts whole.
class LedgerListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Resets the model, but not for a list that is the same, in which the user goes on reading.
    void setList(LedgerList list);
    const LedgerList& list() const { return m_list; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    LedgerList m_list;
};

} // namespace tessera
