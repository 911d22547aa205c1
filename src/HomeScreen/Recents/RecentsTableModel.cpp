// SPDX-License-Identifier: MIT
#include "HomeScreen/Recents/RecentsTableModel.h"

#include "Base/DisplayText.h"
#include "Model/Recents.h"

namespace tessera {

RecentsTableModel::RecentsTableModel(const Recents& recents, QObject* parent)
    : QAbstractListModel(parent)
    , m_recents(recents)
{
}

void RecentsTableModel::reload()
{
    beginResetModel();
    endResetModel();
}

const RecentRecord& RecentsTableModel::record(int row) const
{
    return m_recents.recentsList().at(static_cast<std::size_t>(row));
}

int RecentsTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_recents.recentsList().size());
}

QVariant RecentsTableModel::data(const QModelIndex& index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!isText || !index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const QString path = displayText(record(index.row()).path);
    return role == Qt::ToolTipRole ? plainTooltip(path) : path;
}

} // namespace tessera
