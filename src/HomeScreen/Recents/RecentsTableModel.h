// SPDX-License-Identifier: MIT
#pragma once

#include "Model/UserDefaults.h"

#include <QAbstractListModel>

namespace tessera {

class Recents;

/// The list of recent scans as rows, which the view of them reads at each reload().
class RecentsTableModel final : public QAbstractListModel {
    Q_OBJECT

public:
    /// The recents must outlive the model.
    explicit RecentsTableModel(const Recents& recents, QObject* parent = nullptr);

    /// To be called when the list has changed; forgets the selection of its views.
    void reload();

    const RecentRecord& record(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The path, for views without a cell of their own and for screen readers.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const Recents& m_recents;
};

} // namespace tessera
