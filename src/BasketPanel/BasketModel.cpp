// SPDX-License-Identifier: MIT
#include "BasketPanel/BasketModel.h"

#include "Base/DisplayText.h"
#include "Basket/Basket.h"
#include "Freeing/FreedByScan.h"
#include "Freeing/FreedSpaceText.h"
#include "Language/SizeText.h"
#include "Model/File.h"

#include <unordered_map>

namespace tessera {

BasketModel::BasketModel(const Basket& basket, QObject* parent)
    : QAbstractTableModel(parent)
    , m_basket(basket)
{
}

void BasketModel::bringUpToDate()
{
    if (!m_isStale) {
        return;
    }
    beginResetModel();
    m_rows = rowsOf(m_basket);
    m_isStale = false;
    endResetModel();
}

std::vector<BasketModel::Row> BasketModel::rowsOf(const Basket& basket)
{
    std::vector<Row> rows;
    rows.reserve(basket.size());
    std::unordered_map<const File*, int> depths; // the outer ones come first
    for (const Basket::Entry& entry : basket.entriesBySize()) {
        Row row;
        row.item = entry.item;
        row.path = entry.item->absolutePath();
        row.name = displayText(entry.item->name());
        row.size = sizeText(entry.item->totalAllocation());
        if (entry.inside != nullptr) {
            row.inside = tr("inside “%1”").arg(displayText(entry.inside->name()));
            row.depth = depths[entry.inside] + 1;
        }
        depths[entry.item] = row.depth;
        rows.push_back(std::move(row));
    }
    return rows;
}

File* BasketModel::item(int row) const
{
    return m_isStale ? nullptr : rowAt(row).item;
}

bool BasketModel::isToBeWorkedOut(int row) const
{
    return !m_isStale && rowAt(row).inside.isEmpty() && !rowAt(row).willFree;
}

void BasketModel::workOut(int row)
{
    if (!isToBeWorkedOut(row)) {
        return;
    }
    const FreedByScan freed({item(row)});
    Row& changed = m_rows[static_cast<std::size_t>(row)];
    changed.willFree = freedSpaceText(freed.space());
    changed.reasons = freedSpaceReasons(freed.space()).join(QLatin1Char('\n'));
    emit dataChanged(index(row, WillFree), index(row, WillFree));
}

int BasketModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int BasketModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant BasketModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Row& row = rowAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::AccessibleTextRole:
        return spokenText(row, index.column());
    case Qt::ToolTipRole:
        return plainTooltip(tooltip(row, index.column()));
    case Qt::TextAlignmentRole: {
        const bool isNumber
            = index.column() == Size || (index.column() == WillFree && row.inside.isEmpty());
        return QVariant::fromValue((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QString BasketModel::text(const Row& row, int column)
{
    switch (column) {
    case Item:
        return row.name;
    case Size:
        return row.size;
    default:
        return row.inside.isEmpty() ? row.willFree.value_or(QStringLiteral("…")) : row.inside;
    }
}

/// The first cell is what is read out when a row is reached.
QString BasketModel::spokenText(const Row& row, int column)
{
    if (column == Item && !row.inside.isEmpty()) {
        return tr("%1, %2").arg(row.name, row.inside);
    }
    if (column == WillFree && row.inside.isEmpty() && !row.willFree) {
        return tr("not counted yet");
    }
    return text(row, column);
}

QString BasketModel::tooltip(const Row& row, int column)
{
    if (column != WillFree) {
        return displayText(row.path);
    }
    const QString shown = text(row, column);
    return row.reasons.isEmpty() ? shown : shown + QLatin1Char('\n') + row.reasons;
}

QVariant BasketModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(
            (section == Item ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Item:
        return tr("Item");
    case Size:
        return tr("Size");
    default:
        return tr("Will free");
    }
}

} // namespace tessera
